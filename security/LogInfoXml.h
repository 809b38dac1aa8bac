#pragma once

#include "core/IDomainXml.h"
#include "domain/SecurityRecords.h"

#include <string>
#include <tinyxml.h>

/// An entry of the log: the "LogInfo" document.
///
/// A missing attribute resets its field.
class LogInfoXml : public IDomainXml
{
public:
    LogInfoXml();
    ~LogInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setLogInfo(const LogInfo& info) { info_ = info; }
    LogInfo& getLogInfo() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const LogInfo& info);
    static bool readElement(const TiXmlElement& element, LogInfo& info);
    /// @}

private:
    LogInfo info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
