// <DiskLoadCommand DiskName="hda1" DiskFileSystemType="1" />

#include "record/DiskLoadXml.h"

#include "core/Frame.h"

DiskLoadXml::DiskLoadXml() = default;

DiskLoadXml::~DiskLoadXml() = default;

void DiskLoadXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "DiskLoadCommand");
    frame::setText(element, "DiskName", diskName_);
    frame::setInt(element, "DiskFileSystemType", fileSystemType_);
}

bool DiskLoadXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DiskLoadXml::parseXmlString()
{
    return frame::parseRoot(text_, "DiskLoadCommand", document_, node_) && parseXmlNode();
}

bool DiskLoadXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    diskName_ = frame::textOf(*element, "DiskName", diskName_);
    fileSystemType_ = frame::intOf(*element, "DiskFileSystemType", fileSystemType_);
    return true;
}
