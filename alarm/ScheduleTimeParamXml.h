#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// The schedule of one camera: the "ScheduleTimeParam" document.
///
/// A missing attribute resets its field, in both forms. The document reader adds to the lists that the record has; the
/// node reader puts new ones in their place, and prints a line for what is missing.
class ScheduleTimeParamXml : public IDomainXml
{
public:
    ScheduleTimeParamXml();
    ~ScheduleTimeParamXml() override;

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
