#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// What a device does when passive infrared detectors fire: "PIRAlarmEvent" documents, and in the node form also one
/// event.
///
/// A missing "AlarmInterval" gives 10 in the document form. Any other missing attribute, and this one in the node form,
/// resets its field; the node reader prints a line for it. A missing schedule or list of actions is a new one.
class PIRAlarmEventXml : public IDomainXml
{
public:
    PIRAlarmEventXml();
    ~PIRAlarmEventXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setPIRAlarmEvent(const std::vector<PIRAlarmEvent>& events) { events_ = events; }
    std::vector<PIRAlarmEvent>& getPIRAlarmEvent() { return events_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    /// Appends an element for each event, side by side; each holds their number.
    static void writeElement(TiXmlNode& parent, const std::vector<PIRAlarmEvent>& events);
    /// Reads @p element and the events behind it. Of more than two the third and all later ones are read as the second
    /// again, as the peers do: longer lists travel in the node form.
    static bool readElement(const TiXmlElement& element, std::vector<PIRAlarmEvent>& events);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const PIRAlarmEvent& event, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<PIRAlarmEvent>& events, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PIRAlarmEvent& event) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<PIRAlarmEvent>& events) const;
    bool createXmlString(const PIRAlarmEvent& event, std::string& text) const;
    bool createXmlString(const std::vector<PIRAlarmEvent>& events, std::string& text) const;
    bool parseXmlString(const std::string& text, PIRAlarmEvent& event) const;
    bool parseXmlString(const std::string& text, std::vector<PIRAlarmEvent>& events) const;
    /// @}

private:
    std::vector<PIRAlarmEvent> events_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
