#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>

/// What a camera records by the clock: the "ScheduleRecordPolicy" document.
///
/// In the document form a missing flag and a missing schedule are left, and a missing type gives 0. In the node form
/// everything that is missing is reset and prints a line.
class ScheduleRecordPolicyXml : public IDomainXml
{
public:
    ScheduleRecordPolicyXml();
    ~ScheduleRecordPolicyXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setScheduleRecordPolicy(const ScheduleRecordPolicy& policy) { policy_ = policy; }
    ScheduleRecordPolicy& getScheduleRecordPolicy() { return policy_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ScheduleRecordPolicy& policy);
    static bool readElement(const TiXmlElement& element, ScheduleRecordPolicy& policy);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const ScheduleRecordPolicy& policy, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ScheduleRecordPolicy& policy) const;
    bool createXmlString(const ScheduleRecordPolicy& policy, std::string& text) const;
    bool parseXmlString(const std::string& text, ScheduleRecordPolicy& policy) const;
    /// @}

private:
    ScheduleRecordPolicy policy_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
