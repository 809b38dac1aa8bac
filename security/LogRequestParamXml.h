#pragma once

#include "core/IDomainXml.h"
#include "domain/SecurityRecords.h"

#include <string>
#include <tinyxml.h>

/// A search of the log: the "LogRequestParam" document.
///
/// A missing attribute resets its field.
class LogRequestParamXml : public IDomainXml
{
public:
    LogRequestParamXml();
    ~LogRequestParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setLogRequestParam(const LogRequestParam& param) { param_ = param; }
    LogRequestParam& getLogRequestParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const LogRequestParam& param);
    static bool readElement(const TiXmlElement& element, LogRequestParam& param);
    /// @}

private:
    LogRequestParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
