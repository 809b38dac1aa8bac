#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>

/// What a device does when a camera sees motion: the "MotionDetectionEvent" document.
///
/// A missing attribute resets its field, a missing "MotionDetectionParam" or "ScheduleTimeParam" leaves it. Actions are
/// added to those that the record has.
class MotionDetectionEventXml : public IDomainXml
{
public:
    MotionDetectionEventXml();
    ~MotionDetectionEventXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setMotionDetectionEvent(const MotionDetectionEvent& event) { event_ = event; }
    MotionDetectionEvent& getMotionDetectionEvent() { return event_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const MotionDetectionEvent& event);
    static bool readElement(const TiXmlElement& element, MotionDetectionEvent& event);
    /// @}

private:
    MotionDetectionEvent event_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
