// <DeviceMcuInfo>
//     <McuInfo ArmName="arm0" ArmAppVer="1.4" />
// </DeviceMcuInfo>

#include "device/DeviceMcuInfoXml.h"

#include "core/Frame.h"

#include <utility>

DeviceMcuInfoXml::DeviceMcuInfoXml() = default;

DeviceMcuInfoXml::~DeviceMcuInfoXml() = default;

bool DeviceMcuInfoXml::createXmlString(const DeviceMcuInfo& info, std::string& text) const
{
    SafePointer<DomainXmlNode> root = frame::makeNode("DeviceMcuInfo");
    for (const McuInfo& mcu : info.getMcuInfoList())
    {
        SafePointer<DomainXmlNode> node = frame::appendNode(root, "McuInfo");
        node->setProperty("ArmName", mcu.getArmName());
        node->setProperty("ArmAppVer", mcu.getArmAppVer());
    }
    return DomainXmlNode::toString(root, text);
}

bool DeviceMcuInfoXml::parseXmlString(const std::string& text, DeviceMcuInfo& info) const
{
    SafePointer<DomainXmlNode> root;
    if (!DomainXmlNode::parse(text, "DeviceMcuInfo", root)) return false;

    std::vector<McuInfo> mcus;
    const TiXmlElement* item = frame::firstItem(*root->getXmlNode(), "McuInfo");
    for (; item != nullptr; item = item->NextSiblingElement("McuInfo"))
    {
        McuInfo mcu;
        mcu.setArmName(frame::textOf(*item, "ArmName", ""));
        mcu.setArmAppVer(frame::textOf(*item, "ArmAppVer", ""));
        mcus.push_back(std::move(mcu));
    }
    info.getMcuInfoList() = std::move(mcus);
    return true;
}
