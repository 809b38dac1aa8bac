#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>

/// What a device does when one of its network cards goes down: the "NetworkAlarmEvent" document.
///
/// A missing attribute resets its field. Actions are added to those that the record has. Every successful read prints a
/// line.
class NetworkAlarmEventXml : public IDomainXml
{
public:
    NetworkAlarmEventXml();
    ~NetworkAlarmEventXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setNetworkAlarmEvent(const NetworkAlarmEvent& event) { event_ = event; }
    NetworkAlarmEvent& getNetworkAlarmEvent() { return event_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const NetworkAlarmEvent& event);
    static bool readElement(const TiXmlElement& element, NetworkAlarmEvent& event);
    /// @}

private:
    NetworkAlarmEvent event_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
