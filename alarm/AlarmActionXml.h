#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>

/// What a device does when a source raises an alarm: the "AlarmAction" document.
///
/// A missing "MajorType" or "MinorType" resets its field; anything else that is missing leaves it. Items of a list take
/// the place of those that the record has.
class AlarmActionXml : public IDomainXml
{
public:
    AlarmActionXml();
    ~AlarmActionXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmAction(const AlarmAction& action) { action_ = action; }
    AlarmAction& getAlarmAction() { return action_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmAction& action);
    static bool readElement(const TiXmlElement& element, AlarmAction& action);
    /// @}

private:
    AlarmAction action_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
