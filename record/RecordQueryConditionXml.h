#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>

/// What recordings are searched for: the "RecordQueryCondition" document, which `RecordQueryResultXml` answers.
///
/// A missing attribute leaves its field, but for "CameraId", which gives 0. A missing "AlarmExTypeList" leaves the
/// kinds of alarm, each "AlarmTypeName", "MajorAlarmType" and "MinorAlarmType"; one that is there replaces them, even
/// by none. The calendar times are written only: the record makes them of the others.
class RecordQueryConditionXml : public IDomainXml
{
public:
    RecordQueryConditionXml();
    ~RecordQueryConditionXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRecordQueryCondition(const RecordQueryCondition& condition) { condition_ = condition; }
    RecordQueryCondition& getRecordQueryCondition() { return condition_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const RecordQueryCondition& condition);
    static bool readElement(const TiXmlElement& element, RecordQueryCondition& condition);
    /// @}

private:
    RecordQueryCondition condition_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
