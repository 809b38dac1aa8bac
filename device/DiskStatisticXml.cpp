// <DiskStatistic DiskId="1" DiskTotalSize="4000" DiskFreeSize="1234" DiskStatus="1" />

#include "device/DiskStatisticXml.h"

#include "core/Frame.h"

DiskStatisticXml::DiskStatisticXml() = default;

DiskStatisticXml::~DiskStatisticXml() = default;

void DiskStatisticXml::createXmlNode()
{
    writeElement(document_, disk_);
}

bool DiskStatisticXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DiskStatisticXml::parseXmlString()
{
    return frame::parseRoot(text_, "DiskStatistic", document_, node_) && parseXmlNode();
}

bool DiskStatisticXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, disk_);
}

TiXmlElement& DiskStatisticXml::writeElement(TiXmlNode& parent, const DiskStatistic& disk)
{
    TiXmlElement& element = frame::appendElement(parent, "DiskStatistic");
    frame::setInt(element, "DiskId", disk.getDiskId());
    frame::setInt(element, "DiskTotalSize", disk.getDiskTotalSize());
    frame::setInt(element, "DiskFreeSize", disk.getDiskFreeSize());
    frame::setInt(element, "DiskStatus", disk.getDiskStatus());
    return element;
}

bool DiskStatisticXml::readElement(const TiXmlElement& element, DiskStatistic& disk)
{
    disk.setDiskId(frame::intOf(element, "DiskId", 0));
    disk.setDiskTotalSize(frame::intOf(element, "DiskTotalSize", 0));
    disk.setDiskFreeSize(frame::intOf(element, "DiskFreeSize", 0));
    disk.setDiskStatus(static_cast<std::uint8_t>(frame::intOf(element, "DiskStatus", 0)));
    return true;
}
