#pragma once

#include "core/IDomainXml.h"
#include "domain/SecurityRecords.h"

#include <string>
#include <tinyxml.h>

/// A user as a peer names one: the "User" document.
///
/// A missing attribute resets its field.
class UserXml : public IDomainXml
{
public:
    UserXml();
    ~UserXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setUser(const User& user) { user_ = user; }
    User& getUser() { return user_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const User& user);
    static bool readElement(const TiXmlElement& element, User& user);
    /// @}

private:
    User user_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
