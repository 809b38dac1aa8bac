// <DeviceConfigure>
//     <CommandID PrimaryCommandID="3" SubCommandID="7" />
// </DeviceConfigure>

#include "device/DeviceConfigureXml.h"

#include "core/Frame.h"

DeviceConfigureXml::DeviceConfigureXml() = default;

DeviceConfigureXml::~DeviceConfigureXml() = default;

bool DeviceConfigureXml::createXmlString(std::string& text) const
{
    SafePointer<DomainXmlNode> root = frame::makeNode("DeviceConfigure");
    SafePointer<DomainXmlNode> command = frame::appendNode(root, "CommandID");
    command->setProperty("PrimaryCommandID", primaryCommandID_);
    command->setProperty("SubCommandID", subCommandID_);
    return DomainXmlNode::toString(root, text);
}

bool DeviceConfigureXml::parseXmlString(const std::string& text)
{
    SafePointer<DomainXmlNode> root;
    SafePointer<DomainXmlNode> command;
    if (!DomainXmlNode::parse(text, "DeviceConfigure", root) || !root->getConfigNode("CommandID", command))
        return false;

    primaryCommandID_ = frame::intProperty(command, "PrimaryCommandID", 0);
    subCommandID_ = frame::intProperty(command, "SubCommandID", 0);
    return true;
}
