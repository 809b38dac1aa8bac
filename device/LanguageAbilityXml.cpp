// <LanguageAbility>
//     <LanguageTypeList>
//         <LanguageType LanguageID="1" LanguageName="English" />
//     </LanguageTypeList>
// </LanguageAbility>

#include "device/LanguageAbilityXml.h"

#include "core/Frame.h"

#include <utility>

LanguageAbilityXml::LanguageAbilityXml() = default;

LanguageAbilityXml::~LanguageAbilityXml() noexcept = default;

void LanguageAbilityXml::createXmlNode()
{
    tree_ = frame::makeNode("LanguageAbility");
    element_ = tree_->getXmlNode();
    writeContent(*element_, languages_);
}

bool LanguageAbilityXml::createXmlString()
{
    createXmlNode();
    return DomainXmlNode::toString(tree_, text_);
}

bool LanguageAbilityXml::parseXmlString()
{
    if (!DomainXmlNode::parse(text_, "LanguageAbility", tree_)) return false;
    element_ = tree_->getXmlNode();
    return parseXmlNode();
}

bool LanguageAbilityXml::parseXmlNode()
{
    return element_ != nullptr && readElement(*element_, languages_);
}

TiXmlElement& LanguageAbilityXml::writeElement(TiXmlNode& parent, const std::vector<LanguageType>& languages)
{
    TiXmlElement& element = frame::appendElement(parent, "LanguageAbility");
    writeContent(element, languages);
    return element;
}

bool LanguageAbilityXml::readElement(const TiXmlElement& element, std::vector<LanguageType>& languages)
{
    const TiXmlElement* list = element.FirstChildElement("LanguageTypeList");
    if (list == nullptr) return false;

    std::vector<LanguageType> read;
    const TiXmlElement* item = list->FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        LanguageType language;
        language.setLanguageID(frame::intOf(*item, "LanguageID", 0));
        language.setLanguageName(frame::textOf(*item, "LanguageName", ""));
        read.push_back(std::move(language));
    }
    languages = std::move(read);
    return true;
}

void LanguageAbilityXml::writeContent(TiXmlElement& element, const std::vector<LanguageType>& languages)
{
    TiXmlElement& list = frame::appendElement(element, "LanguageTypeList");
    for (const LanguageType& language : languages)
    {
        TiXmlElement& item = frame::appendElement(list, "LanguageType");
        frame::setInt(item, "LanguageID", language.getLanguageID());
        frame::setText(item, "LanguageName", language.getLanguageName());
    }
}
