// <DiskFormatCommand DiskName="hda1" DiskFileSystemType="1" />

#include "record/DiskFormatExXml.h"

#include "core/Frame.h"

DiskFormatExXml::DiskFormatExXml() = default;

DiskFormatExXml::~DiskFormatExXml() = default;

void DiskFormatExXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "DiskFormatCommand");
    frame::setText(element, "DiskName", diskName_);
    frame::setInt(element, "DiskFileSystemType", fileSystemType_);
}

bool DiskFormatExXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DiskFormatExXml::parseXmlString()
{
    return frame::parseRoot(text_, "DiskFormatCommand", document_, node_) && parseXmlNode();
}

bool DiskFormatExXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    diskName_ = frame::textOf(*element, "DiskName", diskName_);
    fileSystemType_ = frame::intOf(*element, "DiskFileSystemType", fileSystemType_);
    return true;
}
