#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// An alarm, and the device that raised it: the "AlarmInfo" document.
///
/// A missing attribute resets its field, in both forms. A missing "AlarmData" leaves the alarm in the document form and
/// resets it in the node form. The node form prints a line for a missing attribute, and two for a missing "AlarmData".
class AlarmInfoXml : public IDomainXml
{
public:
    AlarmInfoXml();
    ~AlarmInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmInfo(const AlarmInfo& info) { info_ = info; }
    AlarmInfo& getAlarmInfo() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmInfo& info);
    static bool readElement(const TiXmlElement& element, AlarmInfo& info);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AlarmInfo& info, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmInfo& info) const;
    bool createXmlString(const AlarmInfo& info, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmInfo& info) const;
    /// @}

private:
    AlarmInfo info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
