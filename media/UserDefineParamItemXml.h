#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Values that the user defined: the "UserDefineParamItemList" document.
///
/// A missing attribute leaves its field as in a new record; the node form prints a line for it. The document form reads
/// items of that name only, the node form items of any name. Both append to the list.
class UserDefineParamItemXml : public IDomainXml
{
public:
    UserDefineParamItemXml();
    ~UserDefineParamItemXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setUserDefineParamItemList(const std::vector<UserDefineParamItem>& items) { items_ = items; }
    std::vector<UserDefineParamItem>& getUserDefineParamItemList() { return items_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<UserDefineParamItem>& items);
    static bool readElement(const TiXmlElement& element, std::vector<UserDefineParamItem>& items);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const std::vector<UserDefineParamItem>& items, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<UserDefineParamItem>& items) const;
    bool createXmlString(const std::vector<UserDefineParamItem>& items, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<UserDefineParamItem>& items) const;
    /// @}

private:
    std::vector<UserDefineParamItem> items_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
