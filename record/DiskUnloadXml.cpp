// <DiskUnloadCommand DiskName="hda1" DiskFileSystemType="1" />

#include "record/DiskUnloadXml.h"

#include "core/Frame.h"

DiskUnloadXml::DiskUnloadXml() = default;

DiskUnloadXml::~DiskUnloadXml() = default;

void DiskUnloadXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "DiskUnloadCommand");
    frame::setText(element, "DiskName", diskName_);
    frame::setInt(element, "DiskFileSystemType", fileSystemType_);
}

bool DiskUnloadXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DiskUnloadXml::parseXmlString()
{
    return frame::parseRoot(text_, "DiskUnloadCommand", document_, node_) && parseXmlNode();
}

bool DiskUnloadXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    diskName_ = frame::textOf(*element, "DiskName", diskName_);
    fileSystemType_ = frame::intOf(*element, "DiskFileSystemType", fileSystemType_);
    return true;
}
