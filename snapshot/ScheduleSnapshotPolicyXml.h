#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/SnapshotRecords.h"

#include <string>
#include <tinyxml.h>

/// What pictures a camera takes by the clock: the "ScheduleSnapshotPolicy" document.
///
/// In the document form a missing flag and a missing child are left, and a missing type gives 0. In the node form they
/// are reset, and a missing type gives 1.
class ScheduleSnapshotPolicyXml : public IDomainXml
{
public:
    ScheduleSnapshotPolicyXml();
    ~ScheduleSnapshotPolicyXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setScheduleSnapshotPolicy(const ScheduleSnapshotPolicy& policy) { policy_ = policy; }
    ScheduleSnapshotPolicy& getScheduleSnapshotPolicy() { return policy_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ScheduleSnapshotPolicy& policy);
    static bool readElement(const TiXmlElement& element, ScheduleSnapshotPolicy& policy);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const ScheduleSnapshotPolicy& policy, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ScheduleSnapshotPolicy& policy) const;
    bool createXmlString(const ScheduleSnapshotPolicy& policy, std::string& text) const;
    bool parseXmlString(const std::string& text, ScheduleSnapshotPolicy& policy) const;
    /// @}

private:
    ScheduleSnapshotPolicy policy_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
