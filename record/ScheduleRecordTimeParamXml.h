#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// The schedule that a camera is recorded by: the "ScheduleRecordTimeParam" document. It carries the record of a
/// "ScheduleTimeParam" under another name.
///
/// In the document form a missing attribute resets its field, and the lists are added to those that the record has. In
/// the node form a missing "CameraId" gives 1, the lists are put in place of those that the record has, and each value
/// that is missing prints a line.
class ScheduleRecordTimeParamXml : public IDomainXml
{
public:
    ScheduleRecordTimeParamXml();
    ~ScheduleRecordTimeParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setScheduleTimeParam(const ScheduleTimeParam& schedule) { schedule_ = schedule; }
    ScheduleTimeParam& getScheduleTimeParam() { return schedule_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ScheduleTimeParam& schedule);
    static bool readElement(const TiXmlElement& element, ScheduleTimeParam& schedule);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const ScheduleTimeParam& schedule, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ScheduleTimeParam& schedule) const;
    bool createXmlString(const ScheduleTimeParam& schedule, std::string& text) const;
    bool parseXmlString(const std::string& text, ScheduleTimeParam& schedule) const;
    /// @}

private:
    ScheduleTimeParam schedule_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
