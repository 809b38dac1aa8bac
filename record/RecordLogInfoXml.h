#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>

/// One entry of a log of recordings: the "RecordLogInfo" document.
///
/// A missing attribute resets its field.
class RecordLogInfoXml : public IDomainXml
{
public:
    RecordLogInfoXml();
    ~RecordLogInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRecordLogInfo(const RecordLogInfo& info) { info_ = info; }
    RecordLogInfo& getRecordLogInfo() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const RecordLogInfo& info);
    static bool readElement(const TiXmlElement& element, RecordLogInfo& info);
    /// @}

private:
    RecordLogInfo info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
