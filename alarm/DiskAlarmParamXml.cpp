// <DiskAlarmParam DiskFullAlarmCheckFlag="true" MaxDiskPercent="95" MinDiskPercent="80"
//                 DiskErrorAlarmCheckFlag="true" />

#include "alarm/DiskAlarmParamXml.h"

#include "core/Frame.h"

DiskAlarmParamXml::DiskAlarmParamXml() = default;

DiskAlarmParamXml::~DiskAlarmParamXml() = default;

void DiskAlarmParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool DiskAlarmParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DiskAlarmParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "DiskAlarmParam", document_, node_) && parseXmlNode();
}

bool DiskAlarmParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& DiskAlarmParamXml::writeElement(TiXmlNode& parent, const DiskAlarmParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "DiskAlarmParam");
    frame::setFlag(element, "DiskFullAlarmCheckFlag", param.getDiskFullAlarmCheckFlag());
    frame::setInt(element, "MaxDiskPercent", param.getMaxDiskPercent());
    frame::setInt(element, "MinDiskPercent", param.getMinDiskPercent());
    frame::setFlag(element, "DiskErrorAlarmCheckFlag", param.getDiskErrorAlarmCheckFlag());
    return element;
}

bool DiskAlarmParamXml::readElement(const TiXmlElement& element, DiskAlarmParam& param)
{
    param.setDiskFullAlarmCheckFlag(frame::flagOf(element, "DiskFullAlarmCheckFlag", false));
    param.setMaxDiskPercent(frame::intOf(element, "MaxDiskPercent", 0));
    param.setMinDiskPercent(frame::intOf(element, "MinDiskPercent", 0));
    param.setDiskErrorAlarmCheckFlag(frame::flagOf(element, "DiskErrorAlarmCheckFlag", false));
    return true;
}
