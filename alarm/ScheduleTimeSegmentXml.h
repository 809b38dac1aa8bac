#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// An absolute span of time: the "ScheduleTimeSegment" document.
///
/// A missing attribute resets its field, in both forms; the node reader prints a line for it.
///
/// The document form reads at most 2147483647, though it writes the whole range; the node form carries every value.
class ScheduleTimeSegmentXml : public IDomainXml
{
public:
    ScheduleTimeSegmentXml();
    ~ScheduleTimeSegmentXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setScheduleTimeSegment(const ScheduleTimeSegment& segment) { segment_ = segment; }
    ScheduleTimeSegment& getScheduleTimeSegment() { return segment_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ScheduleTimeSegment& segment);
    static bool readElement(const TiXmlElement& element, ScheduleTimeSegment& segment);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const ScheduleTimeSegment& segment, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ScheduleTimeSegment& segment) const;
    bool createXmlString(const ScheduleTimeSegment& segment, std::string& text) const;
    bool parseXmlString(const std::string& text, ScheduleTimeSegment& segment) const;
    /// @}

private:
    ScheduleTimeSegment segment_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
