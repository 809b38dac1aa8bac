#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// What is recorded of the cameras of a device, and how it is kept: the "RecordPolicyList" document.
///
/// Both forms append to the list. What an item lacks is 0, empty or false, except that in the node form a missing
/// "CameraId" or "StreamId" gives 1.
class RecordPolicyXml : public IDomainXml
{
public:
    RecordPolicyXml();
    ~RecordPolicyXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRecordPolicyList(const std::vector<RecordPolicy>& policies) { policies_ = policies; }
    std::vector<RecordPolicy>& getRecordPolicyList() { return policies_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<RecordPolicy>& policies);
    static bool readElement(const TiXmlElement& element, std::vector<RecordPolicy>& policies);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to; items of other names are passed over.
    /// @{
    bool createDomainXmlNode(const std::vector<RecordPolicy>& policies, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<RecordPolicy>& policies) const;
    bool createXmlString(const std::vector<RecordPolicy>& policies, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<RecordPolicy>& policies) const;

    /// One item of the list: @p node is a "RecordPolicy".
    bool createDomainRecordPolicyXmlNode(const RecordPolicy& policy, SafePointer<DomainXmlNode>& node) const;
    /// Reads one item. Each missing value prints a line; the eight attributes all print the same.
    bool parseDomainRecordPolicyXmlNode(const SafePointer<DomainXmlNode>& node, RecordPolicy& policy) const;
    /// @}

private:
    std::vector<RecordPolicy> policies_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
