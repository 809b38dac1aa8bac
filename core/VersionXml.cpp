// <Version HardwareVer="1.2" SoftwareVer="3.4.5" />

#include "core/VersionXml.h"

#include "core/Frame.h"

VersionXml::VersionXml() = default;

VersionXml::~VersionXml() = default;

void VersionXml::createXmlNode()
{
    writeElement(document_, version_);
}

bool VersionXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VersionXml::parseXmlString()
{
    return frame::parseRoot(text_, "Version", document_, node_) && parseXmlNode();
}

bool VersionXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, version_);
}

TiXmlElement& VersionXml::writeElement(TiXmlNode& parent, const Version& version)
{
    TiXmlElement& element = frame::appendElement(parent, "Version");
    frame::setText(element, "HardwareVer", version.getHardwareVer());
    frame::setText(element, "SoftwareVer", version.getSoftwareVer());
    return element;
}

bool VersionXml::readElement(const TiXmlElement& element, Version& version)
{
    version.setHardwareVer(frame::textOf(element, "HardwareVer", ""));
    version.setSoftwareVer(frame::textOf(element, "SoftwareVer", ""));
    return true;
}
