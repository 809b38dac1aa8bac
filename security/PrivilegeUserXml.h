#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/SecurityRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The accounts of a device: the "PrivilegeUserList" document, and "PrivilegeUser" for one in the node form.
///
/// A missing attribute gives 0, empty or false, in both forms; the node form prints a line for it. In the documents the
/// group is called "GroupI". The document form carries "LockTime" as a signed number of 32 bits: 4294967295 goes out as
/// -1, which reads as the highest value of an `unsigned long`. The node form carries it whole.
class PrivilegeUserXml : public IDomainXml
{
public:
    PrivilegeUserXml();
    ~PrivilegeUserXml() override;

    /// @name Document form
    /// See IDomainXml. The reader appends to the list.
    /// @{
    void setPrivilegeUserList(const std::vector<PrivilegeUser>& users) { users_ = users; }
    std::vector<PrivilegeUser>& getPrivilegeUserList() { return users_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<PrivilegeUser>& users);
    static bool readElement(const TiXmlElement& element, std::vector<PrivilegeUser>& users);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to; children of another name than "PrivilegeUser" are passed over.
    /// @{
    bool createDomainXmlNode(const PrivilegeUser& user, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<PrivilegeUser>& users, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PrivilegeUser& user) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<PrivilegeUser>& users) const;
    bool createXmlString(const PrivilegeUser& user, std::string& text) const;
    bool createXmlString(const std::vector<PrivilegeUser>& users, std::string& text) const;
    bool parseXmlString(const std::string& text, PrivilegeUser& user) const;
    bool parseXmlString(const std::string& text, std::vector<PrivilegeUser>& users) const;
    /// @}

private:
    std::vector<PrivilegeUser> users_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
