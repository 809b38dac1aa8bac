#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/SecurityRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The accounts of a device: the "ZT_PrivilegeUserList" document, and "ZT_PrivilegeUser" for one in the node form.
///
/// The twin of PrivilegeUserXml under names with a prefix, and with a record of its own. A missing attribute gives 0,
/// empty or false, in both forms; the node form prints a line for it, which names that twin. In the documents the group
/// is called "ZT_GroupI". The document form carries "ZT_LockTime" as a signed number of 32 bits: 4294967295 goes out as
/// -1, which reads as the highest value of an `unsigned long`. The node form carries it whole.
class ZT_PrivilegeUserXml : public IDomainXml
{
public:
    ZT_PrivilegeUserXml();
    ~ZT_PrivilegeUserXml() override;

    /// @name Document form
    /// See IDomainXml. The reader appends to the list.
    /// @{
    void setPrivilegeUserList(const std::vector<ZT_PrivilegeUser>& users) { users_ = users; }
    std::vector<ZT_PrivilegeUser>& getPrivilegeUserList() { return users_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<ZT_PrivilegeUser>& users);
    static bool readElement(const TiXmlElement& element, std::vector<ZT_PrivilegeUser>& users);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to; children of another name than "ZT_PrivilegeUser" are passed over.
    /// @{
    bool createDomainXmlNode(const ZT_PrivilegeUser& user, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<ZT_PrivilegeUser>& users, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ZT_PrivilegeUser& user) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<ZT_PrivilegeUser>& users) const;
    bool createXmlString(const ZT_PrivilegeUser& user, std::string& text) const;
    bool createXmlString(const std::vector<ZT_PrivilegeUser>& users, std::string& text) const;
    bool parseXmlString(const std::string& text, ZT_PrivilegeUser& user) const;
    bool parseXmlString(const std::string& text, std::vector<ZT_PrivilegeUser>& users) const;
    /// @}

private:
    std::vector<ZT_PrivilegeUser> users_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
