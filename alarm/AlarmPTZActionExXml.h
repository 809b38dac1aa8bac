#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>

/// Moves a camera, as an "AlarmAction" does: an "AlarmPTZAction" document. The one of AlarmPTZActionXml bears the same
/// root.
///
/// A missing "CameraId" resets its field, a missing "PtzCmd" leaves it.
class AlarmPTZActionExXml : public IDomainXml
{
public:
    AlarmPTZActionExXml();
    ~AlarmPTZActionExXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmPTZAction(const AlarmPTZActionEx& action) { action_ = action; }
    AlarmPTZActionEx& getAlarmPTZAction() { return action_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmPTZActionEx& action);
    static bool readElement(const TiXmlElement& element, AlarmPTZActionEx& action);
    /// @}

private:
    AlarmPTZActionEx action_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
