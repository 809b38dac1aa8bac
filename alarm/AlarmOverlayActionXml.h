#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// Shows text on a camera's picture: the "AlarmOverlayAction" document.
///
/// A missing attribute resets its field, in both forms. A missing "OSDInfo" leaves the text in the document form and
/// resets it in the node form. The node reader prints a line for what is missing.
class AlarmOverlayActionXml : public IDomainXml
{
public:
    AlarmOverlayActionXml();
    ~AlarmOverlayActionXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmOverlayAction(const AlarmOverlayAction& action) { action_ = action; }
    AlarmOverlayAction& getAlarmOverlayAction() { return action_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmOverlayAction& action);
    static bool readElement(const TiXmlElement& element, AlarmOverlayAction& action);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AlarmOverlayAction& action, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmOverlayAction& action) const;
    bool createXmlString(const AlarmOverlayAction& action, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmOverlayAction& action) const;
    /// @}

private:
    AlarmOverlayAction action_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
