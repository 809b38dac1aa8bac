#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// Moves a camera by a command: the "AlarmPTZAction" document. The one of AlarmPTZActionExXml bears the same root.
///
/// A missing attribute resets its field in the document form, but for "Reserve", which is left. In the node form it
/// resets every field; the node reader prints a line for it.
///
/// The length of the command is that of its text in the document form, whatever "PtzOperationCmdLen" says; without
/// either of the two the command is empty. The node form takes as many bytes as "PtzOperationCmdLen" says, at most the
/// whole text; a negative number leaves the command as it was.
class AlarmPTZActionXml : public IDomainXml
{
public:
    AlarmPTZActionXml();
    ~AlarmPTZActionXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmPTZAction(const AlarmPTZAction& action) { action_ = action; }
    AlarmPTZAction& getAlarmPTZAction() { return action_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmPTZAction& action);
    static bool readElement(const TiXmlElement& element, AlarmPTZAction& action);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AlarmPTZAction& action, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmPTZAction& action) const;
    bool createXmlString(const AlarmPTZAction& action, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmPTZAction& action) const;
    /// @}

private:
    AlarmPTZAction action_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
