#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>

/// An alarm in the log: the "AlarmLogRecordSet" document.
///
/// A missing attribute resets its field.
class AlarmLogRecordSetXml : public IDomainXml
{
public:
    AlarmLogRecordSetXml();
    ~AlarmLogRecordSetXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmLogRecordSet(const AlarmLogRecordSet& record) { record_ = record; }
    AlarmLogRecordSet& getAlarmLogRecordSet() { return record_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmLogRecordSet& record);
    static bool readElement(const TiXmlElement& element, AlarmLogRecordSet& record);
    /// @}

private:
    AlarmLogRecordSet record_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
