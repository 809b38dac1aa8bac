#pragma once

#include "core/IDomainXml.h"
#include "domain/SecurityRecords.h"

#include <string>
#include <tinyxml.h>

/// A search of the log between two points in time: the "LogRequestParamEx" document.
///
/// A missing attribute or child leaves its field; what a child lacks is 0.
class LogRequestParamExXml : public IDomainXml
{
public:
    LogRequestParamExXml();
    ~LogRequestParamExXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setLogRequestParamEx(const LogRequestParamEx& param) { param_ = param; }
    LogRequestParamEx& getLogRequestParamEx() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const LogRequestParamEx& param);
    static bool readElement(const TiXmlElement& element, LogRequestParamEx& param);
    /// @}

private:
    LogRequestParamEx param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
