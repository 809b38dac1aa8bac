#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>

/// What a camera records when an alarm comes: the "AlarmRecordPolicy" document.
///
/// A missing number gives 0. A missing flag is left in the document form and false in the node form. The document form
/// adds the alarms to those that the record has; the node form puts them in their place, and leaves those of the record
/// when the list is missing.
class AlarmRecordPolicyXml : public IDomainXml
{
public:
    AlarmRecordPolicyXml();
    ~AlarmRecordPolicyXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmRecordPolicy(const AlarmRecordPolicy& policy) { policy_ = policy; }
    AlarmRecordPolicy& getAlarmRecordPolicy() { return policy_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmRecordPolicy& policy);
    static bool readElement(const TiXmlElement& element, AlarmRecordPolicy& policy);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AlarmRecordPolicy& policy, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmRecordPolicy& policy) const;
    bool createXmlString(const AlarmRecordPolicy& policy, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmRecordPolicy& policy) const;
    /// @}

private:
    AlarmRecordPolicy policy_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
