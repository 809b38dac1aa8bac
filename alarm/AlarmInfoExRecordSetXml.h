#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Alarms in the log, as the answer to a query: the "AlarmInfoExRecordSetList" document.
///
/// The reader appends to the list. What an item lacks is 0 or empty; a missing "SendEndFlag" gives false.
class AlarmInfoExRecordSetXml : private IDomainXml
{
public:
    AlarmInfoExRecordSetXml();
    ~AlarmInfoExRecordSetXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmInfoExRecordSetList(const std::vector<AlarmInfoExRecordSet>& records) { records_ = records; }
    std::vector<AlarmInfoExRecordSet>& getAlarmInfoExRecordSetList() { return records_; }
    /// Whether this is the last part of an answer.
    bool getEndFlag() const { return endFlag_; }
    void setEndFlag(bool endFlag) { endFlag_ = endFlag; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<AlarmInfoExRecordSet>& records,
                                      bool endFlag);
    static bool readElement(const TiXmlElement& element, std::vector<AlarmInfoExRecordSet>& records, bool& endFlag);
    /// @}

private:
    std::vector<AlarmInfoExRecordSet> records_;
    bool endFlag_ = false;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
