#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// One day of a weekly schedule: the "ScheduleWeek" document.
///
/// A missing attribute resets its field, in both forms. The document reader adds spans to those that the record has;
/// the node reader puts them in their place, and prints a line for what is missing.
class ScheduleWeekXml : public IDomainXml
{
public:
    ScheduleWeekXml();
    ~ScheduleWeekXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setScheduleWeek(const ScheduleWeek& week) { week_ = week; }
    ScheduleWeek& getScheduleWeek() { return week_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ScheduleWeek& week);
    static bool readElement(const TiXmlElement& element, ScheduleWeek& week);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const ScheduleWeek& week, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ScheduleWeek& week) const;
    bool createXmlString(const ScheduleWeek& week, std::string& text) const;
    bool parseXmlString(const std::string& text, ScheduleWeek& week) const;
    /// @}

private:
    ScheduleWeek week_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
