#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// A span of a day: the "ScheduleTime" document.
///
/// A missing attribute resets its field, in both forms; the node reader prints a line for it.
///
/// The node form carries times as `int`: where a `long` is wider, only its low 32 bits travel.
class ScheduleTimeXml : public IDomainXml
{
public:
    ScheduleTimeXml();
    ~ScheduleTimeXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setScheduleTime(const ScheduleTime& time) { time_ = time; }
    ScheduleTime& getScheduleTime() { return time_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ScheduleTime& time);
    static bool readElement(const TiXmlElement& element, ScheduleTime& time);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const ScheduleTime& time, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ScheduleTime& time) const;
    bool createXmlString(const ScheduleTime& time, std::string& text) const;
    bool parseXmlString(const std::string& text, ScheduleTime& time) const;
    /// @}

private:
    ScheduleTime time_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
