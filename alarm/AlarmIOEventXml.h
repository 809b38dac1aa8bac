#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// What a device does when an alarm input fires: the "AlarmIOEvent" document, and "AlarmIOEventList" for several.
///
/// A missing attribute resets its field, in both forms. The document form has no schedule: it writes none, and leaves
/// the record's. It adds actions to those that the record has. The node reader puts new ones in their place, resets a
/// schedule that is missing, and prints a line for what is missing, two for most children.
class AlarmIOEventXml : public IDomainXml
{
public:
    AlarmIOEventXml();
    ~AlarmIOEventXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmIOEvent(const AlarmIOEvent& event) { event_ = event; }
    AlarmIOEvent& getAlarmIOEvent() { return event_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmIOEvent& event);
    static bool readElement(const TiXmlElement& element, AlarmIOEvent& event);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const AlarmIOEvent& event, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<AlarmIOEvent>& events, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmIOEvent& event) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<AlarmIOEvent>& events) const;
    bool createXmlString(const AlarmIOEvent& event, std::string& text) const;
    bool createXmlString(const std::vector<AlarmIOEvent>& events, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmIOEvent& event) const;
    bool parseXmlString(const std::string& text, std::vector<AlarmIOEvent>& events) const;
    /// @}

private:
    AlarmIOEvent event_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
