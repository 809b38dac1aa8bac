#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/SnapshotRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// What pictures are taken of the cameras of a device, and how they are kept: the "SnapshotPolicyList" document.
///
/// Both forms append to the list. What an item lacks is 0, empty or false, and a missing child has the values of a new
/// record; a child that is there has the values that its own codec gives. Only the node form carries the device.
class SnapshotPolicyXml : public IDomainXml
{
public:
    SnapshotPolicyXml();
    ~SnapshotPolicyXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSnapshotPolicyList(const std::vector<SnapshotPolicy>& policies) { policies_ = policies; }
    std::vector<SnapshotPolicy>& getSnapshotPolicyList() { return policies_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<SnapshotPolicy>& policies);
    static bool readElement(const TiXmlElement& element, std::vector<SnapshotPolicy>& policies);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const std::vector<SnapshotPolicy>& policies, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<SnapshotPolicy>& policies) const;
    bool createXmlString(const std::vector<SnapshotPolicy>& policies, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<SnapshotPolicy>& policies) const;
    /// @}

private:
    std::vector<SnapshotPolicy> policies_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
