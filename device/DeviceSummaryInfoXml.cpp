// <DeviceSummaryInfo DeviceName="Gate" DeviceID="D1" ManufacturerId="M1" ... VideoSystem="1">
//     <RS485ComIdList>
//         <RS485ComId ComId="1" />
//     </RS485ComIdList>
//     <Version HardwareVer="1.2" SoftwareVer="3.4.5" />
// </DeviceSummaryInfo>

#include "device/DeviceSummaryInfoXml.h"

#include "core/Frame.h"
#include "core/VersionXml.h"

#include <utility>

DeviceSummaryInfoXml::DeviceSummaryInfoXml() = default;

DeviceSummaryInfoXml::~DeviceSummaryInfoXml() = default;

void DeviceSummaryInfoXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool DeviceSummaryInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DeviceSummaryInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "DeviceSummaryInfo", document_, node_) && parseXmlNode();
}

bool DeviceSummaryInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& DeviceSummaryInfoXml::writeElement(TiXmlNode& parent, const DeviceSummaryInfo& info)
{
    TiXmlElement& element = frame::appendElement(parent, "DeviceSummaryInfo");
    frame::setText(element, "DeviceName", info.getDeviceName());
    frame::setText(element, "DeviceID", info.getDeviceId());
    frame::setText(element, "ManufacturerId", info.getManufacturerId());
    frame::setText(element, "ManufacturerName", info.getManufacturerName());
    frame::setText(element, "ProductModel", info.getProductModel());
    frame::setText(element, "ProductDescription", info.getProductDescription());
    frame::setText(element, "HardwareModel", info.getHardwareModel());
    frame::setText(element, "HardwareDescription", info.getHardwareDescription());
    frame::setText(element, "MACAddress", info.getMACAddress());
    frame::setText(element, "BarCode", info.getBarCode());
    frame::setText(element, "SN", info.getSN());
    frame::setText(element, "ProductionTime", info.getProductionTime());
    frame::setInt(element, "DeviceType", info.getDeviceType());
    frame::setInt(element, "CameraNum", info.getCameraNum());
    frame::setInt(element, "AlarmInNum", info.getAlarmInNum());
    frame::setInt(element, "AlarmOutNum", info.getAlarmOutNum());
    frame::setInt(element, "RS485Num", info.getRS485Num());
    frame::setInt(element, "RS232Num", info.getRS232Num());
    frame::setInt(element, "NetworkCardNum", info.getNetworkCardNum());
    frame::setInt(element, "VideoSystem", info.getVideoSystem());

    TiXmlElement& ports = frame::appendElement(element, "RS485ComIdList");
    for (const int comId : info.getRS485ComIdList())
        frame::setInt(frame::appendElement(ports, "RS485ComId"), "ComId", comId);

    VersionXml::writeElement(element, info.getVersion());
    return element;
}

bool DeviceSummaryInfoXml::readElement(const TiXmlElement& element, DeviceSummaryInfo& info)
{
    info.setDeviceName(frame::textOf(element, "DeviceName", info.getDeviceName()));
    info.setDeviceId(frame::textOf(element, "DeviceID", info.getDeviceId()));
    info.setManufacturerId(frame::textOf(element, "ManufacturerId", info.getManufacturerId()));
    info.setManufacturerName(frame::textOf(element, "ManufacturerName", info.getManufacturerName()));
    info.setProductModel(frame::textOf(element, "ProductModel", info.getProductModel()));
    info.setProductDescription(frame::textOf(element, "ProductDescription", info.getProductDescription()));
    info.setHardwareModel(frame::textOf(element, "HardwareModel", info.getHardwareModel()));
    info.setHardwareDescription(frame::textOf(element, "HardwareDescription", info.getHardwareDescription()));
    info.setMACAddress(frame::textOf(element, "MACAddress", info.getMACAddress()));
    info.setBarCode(frame::textOf(element, "BarCode", info.getBarCode()));
    info.setSN(frame::textOf(element, "SN", info.getSN()));
    info.setProductionTime(frame::textOf(element, "ProductionTime", info.getProductionTime()));
    info.setDeviceType(frame::intOf(element, "DeviceType", info.getDeviceType()));
    info.setCameraNum(frame::intOf(element, "CameraNum", info.getCameraNum()));
    info.setAlarmInNum(frame::intOf(element, "AlarmInNum", info.getAlarmInNum()));
    info.setAlarmOutNum(frame::intOf(element, "AlarmOutNum", info.getAlarmOutNum()));
    info.setRS485Num(frame::intOf(element, "RS485Num", info.getRS485Num()));
    info.setRS232Num(frame::intOf(element, "RS232Num", info.getRS232Num()));
    info.setNetworkCardNum(frame::intOf(element, "NetworkCardNum", info.getNetworkCardNum()));
    info.setVideoSystem(frame::intOf(element, "VideoSystem", info.getVideoSystem()));

    const TiXmlElement* item = frame::firstItem(element, "RS485ComIdList", "RS485ComId");
    for (; item != nullptr; item = item->NextSiblingElement())
        info.getRS485ComIdList().push_back(frame::intOf(*item, "ComId", 0));

    const TiXmlElement* child = element.FirstChildElement("Version");
    if (child != nullptr)
    {
        Version version;
        if (!VersionXml::readElement(*child, version)) return false;
        info.getVersion() = std::move(version);
    }
    return true;
}
