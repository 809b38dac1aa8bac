// <NetworkAbility>
//     <NetworkAbilityList>
//         <NetworkCardAbility NetWorkCardId="1" NetWorkCardName="eth0" Description="Port" SupportAlarm="true" />
//     </NetworkAbilityList>
// </NetworkAbility>

#include "device/IPCNetworkAbilityXml.h"

#include "core/Frame.h"

#include <utility>

IPCNetworkAbilityXml::IPCNetworkAbilityXml() = default;

IPCNetworkAbilityXml::~IPCNetworkAbilityXml() noexcept = default;

void IPCNetworkAbilityXml::createXmlNode()
{
    tree_ = frame::makeNode("NetworkAbility");
    element_ = tree_->getXmlNode();
    writeContent(*element_, cards_);
}

// Parents take the element; nobody sends this document on its own.
bool IPCNetworkAbilityXml::createXmlString()
{
    return true;
}

bool IPCNetworkAbilityXml::parseXmlString()
{
    return true;
}

bool IPCNetworkAbilityXml::parseXmlNode()
{
    return element_ != nullptr && readElement(*element_, cards_);
}

TiXmlElement& IPCNetworkAbilityXml::writeElement(TiXmlNode& parent, const std::vector<IPCNetworkCardAbility>& cards)
{
    TiXmlElement& element = frame::appendElement(parent, "NetworkAbility");
    writeContent(element, cards);
    return element;
}

bool IPCNetworkAbilityXml::readElement(const TiXmlElement& element, std::vector<IPCNetworkCardAbility>& cards)
{
    const TiXmlElement* list = element.FirstChildElement("NetworkAbilityList");
    if (list == nullptr) return false;

    std::vector<IPCNetworkCardAbility> read;
    const TiXmlElement* item = list->FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        IPCNetworkCardAbility card;
        card.setNetWorkCardId(frame::intOf(*item, "NetWorkCardId", 0));
        card.setNetWorkCardName(frame::textOf(*item, "NetWorkCardName", ""));
        card.setDescription(frame::textOf(*item, "Description", ""));
        card.setSupportAlarm(frame::flagOf(*item, "SupportAlarm", false));
        read.push_back(std::move(card));
    }
    cards = std::move(read);
    return true;
}

void IPCNetworkAbilityXml::writeContent(TiXmlElement& element, const std::vector<IPCNetworkCardAbility>& cards)
{
    TiXmlElement& list = frame::appendElement(element, "NetworkAbilityList");
    for (const IPCNetworkCardAbility& card : cards)
    {
        TiXmlElement& item = frame::appendElement(list, "NetworkCardAbility");
        frame::setInt(item, "NetWorkCardId", card.getNetWorkCardId());
        frame::setText(item, "NetWorkCardName", card.getNetWorkCardName());
        frame::setText(item, "Description", card.getDescription());
        frame::setFlag(item, "SupportAlarm", card.getSupportAlarm());
    }
}
