#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// Records a camera: the "AlarmRecordAction" document.
///
/// A missing attribute resets its field, in both forms; the node reader prints a line for it.
class AlarmRecordActionXml : public IDomainXml
{
public:
    AlarmRecordActionXml();
    ~AlarmRecordActionXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmRecordAction(const AlarmRecordAction& action) { action_ = action; }
    AlarmRecordAction& getAlarmRecordAction() { return action_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmRecordAction& action);
    static bool readElement(const TiXmlElement& element, AlarmRecordAction& action);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AlarmRecordAction& action, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmRecordAction& action) const;
    bool createXmlString(const AlarmRecordAction& action, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmRecordAction& action) const;
    /// @}

private:
    AlarmRecordAction action_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
