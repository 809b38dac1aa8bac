#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// Drives an alarm output: the "AlarmOutAction" document.
///
/// A missing attribute resets its field, in both forms; the node reader prints a line for it.
class AlarmOutActionXml : private IDomainXml
{
public:
    AlarmOutActionXml();
    ~AlarmOutActionXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmOutAction(const AlarmOutAction& action) { action_ = action; }
    AlarmOutAction& getAlarmOutAction() { return action_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmOutAction& action);
    static bool readElement(const TiXmlElement& element, AlarmOutAction& action);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AlarmOutAction& action, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmOutAction& action) const;
    bool createXmlString(const AlarmOutAction& action, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmOutAction& action) const;
    /// @}

private:
    AlarmOutAction action_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
