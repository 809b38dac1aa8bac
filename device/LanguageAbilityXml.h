#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The languages in which a device speaks to its users: the "LanguageAbility" document.
///
/// Reading replaces the list. Every child of "LanguageTypeList" counts as an item, whatever its name, and a missing
/// attribute leaves 0 or empty in it. A missing "LanguageTypeList" gives false, and the list is as it was; an empty one
/// is an empty list.
class LanguageAbilityXml : public IDomainXml
{
public:
    LanguageAbilityXml();
    ~LanguageAbilityXml() noexcept override;

    /// @name Document form on an element
    /// See IDomainXml. `createXmlNode` makes a new element each time; `getXmlNode` gives it, or the one that was set or
    /// parsed, and null without any. One that was made or parsed lives until the next is, or until the codec dies; one
    /// that was set is its owner's.
    /// @{
    void setLanguageAbility(const std::vector<LanguageType>& languages) { languages_ = languages; }
    std::vector<LanguageType>& getLanguageAbility() { return languages_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlElement* element) { element_ = element; }
    TiXmlElement* getXmlNode() { return element_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<LanguageType>& languages);
    static bool readElement(const TiXmlElement& element, std::vector<LanguageType>& languages);
    /// @}

private:
    static void writeContent(TiXmlElement& element, const std::vector<LanguageType>& languages);

    std::vector<LanguageType> languages_;
    std::string text_;
    SafePointer<DomainXmlNode> tree_;
    TiXmlElement* element_ = nullptr;
};
