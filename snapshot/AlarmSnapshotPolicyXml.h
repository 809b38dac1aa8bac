#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/SnapshotRecords.h"

#include <string>
#include <tinyxml.h>

/// What pictures a camera takes when an alarm comes: the "AlarmSnapshotPolicy" document.
///
/// A missing number gives 0. A missing flag and a missing parameter are left in the document form and reset in the node
/// form. The document form adds the alarms to those that the record has; the node form puts them in their place, and
/// leaves those of the record when the list is missing.
class AlarmSnapshotPolicyXml : public IDomainXml
{
public:
    AlarmSnapshotPolicyXml();
    ~AlarmSnapshotPolicyXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmSnapshotPolicy(const AlarmSnapshotPolicy& policy) { policy_ = policy; }
    AlarmSnapshotPolicy& getAlarmSnapshotPolicy() { return policy_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmSnapshotPolicy& policy);
    static bool readElement(const TiXmlElement& element, AlarmSnapshotPolicy& policy);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AlarmSnapshotPolicy& policy, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmSnapshotPolicy& policy) const;
    bool createXmlString(const AlarmSnapshotPolicy& policy, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmSnapshotPolicy& policy) const;
    /// @}

private:
    AlarmSnapshotPolicy policy_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
