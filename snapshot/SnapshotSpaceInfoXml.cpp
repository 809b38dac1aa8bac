// <SnapshotSpaceInfo deviceId="4096" />
//
// The attribute holds the room, whatever its name says: the peers look for it under that of the device.

#include "snapshot/SnapshotSpaceInfoXml.h"

#include "core/Frame.h"

SnapshotSpaceInfoXml::SnapshotSpaceInfoXml() = default;

SnapshotSpaceInfoXml::~SnapshotSpaceInfoXml() = default;

void SnapshotSpaceInfoXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool SnapshotSpaceInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SnapshotSpaceInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "SnapshotSpaceInfo", document_, node_) && parseXmlNode();
}

bool SnapshotSpaceInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& SnapshotSpaceInfoXml::writeElement(TiXmlNode& parent, const SnapshotSpaceInfo& info)
{
    TiXmlElement& element = frame::appendElement(parent, "SnapshotSpaceInfo");
    frame::setInt(element, "deviceId", info.getUseableSpace());
    return element;
}

bool SnapshotSpaceInfoXml::readElement(const TiXmlElement& element, SnapshotSpaceInfo& info)
{
    info.setUseableSpace(frame::intOf(element, "deviceId", 0));
    return true;
}
