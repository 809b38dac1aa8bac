// <DeviceBaseInfo DeviceID="D1" DeviceName="Gate" DeviceType="2" ... State="5">
//     <Version HardwareVer="1.2" SoftwareVer="3.4.5" />
//     <CameraDevcieList>
//         <CameraDevice CameraId="1" CameraName="North" CameraModel="M1" VideoSystem="1" />
//     </CameraDevcieList>
// </DeviceBaseInfo>

#include "device/DeviceBaseInfoXml.h"

#include "core/Frame.h"
#include "core/VersionXml.h"
#include "device/CameraDeviceXml.h"

#include <utility>

DeviceBaseInfoXml::DeviceBaseInfoXml() = default;

DeviceBaseInfoXml::~DeviceBaseInfoXml() = default;

void DeviceBaseInfoXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool DeviceBaseInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DeviceBaseInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "DeviceBaseInfo", document_, node_) && parseXmlNode();
}

bool DeviceBaseInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& DeviceBaseInfoXml::writeElement(TiXmlNode& parent, const DeviceBaseInfo& info)
{
    TiXmlElement& element = frame::appendElement(parent, "DeviceBaseInfo");
    frame::setText(element, "DeviceID", info.getDeviceId());
    frame::setText(element, "DeviceName", info.getDeviceName());
    frame::setInt(element, "DeviceType", info.getDeviceType());
    frame::setText(element, "DeviceIP", info.getDeviceIP());
    frame::setInt(element, "DevicePort", info.getDevicePort());
    frame::setInt(element, "IPProtoVer", info.getIPProtoVer());
    frame::setText(element, "UserID", info.getUserID());
    frame::setText(element, "Password", info.getPassword());
    frame::setText(element, "ManufacturerId", info.getManufacturerId());
    frame::setText(element, "ManufacturerName", info.getManufacturerName());
    frame::setText(element, "ProductModel", info.getProductModel());
    frame::setText(element, "ProductDescription", info.getProductDescription());
    frame::setText(element, "MACAddress", info.getMACAddress());
    frame::setText(element, "BarCode", info.getBarCode());
    frame::setText(element, "ProductionTime", info.getProductionTime());
    frame::setText(element, "HardwareModel", info.getHardwareModel());
    frame::setText(element, "HardwareDescription", info.getHardwareDescription());
    frame::setInt(element, "CameraNum", info.getCameraNum());
    frame::setInt(element, "AlarmInNum", info.getAlarmInNum());
    frame::setInt(element, "AlarmOutNum", info.getAlarmOutNum());
    frame::setInt(element, "RS485Num", info.getRS485Num());
    // The peers write the state bits as a signed number; from the highest bit on it bears a minus sign.
    frame::setInt64(element, "State", static_cast<long long>(info.getState()));

    VersionXml::writeElement(element, info.getVersion());

    TiXmlElement& cameras = frame::appendElement(element, "CameraDevcieList"); // the peers' spelling
    for (const CameraDevice& camera : info.getCameraDeviceList())
        CameraDeviceXml::writeElement(cameras, camera);
    return element;
}

bool DeviceBaseInfoXml::readElement(const TiXmlElement& element, DeviceBaseInfo& info)
{
    info.setDeviceId(frame::textOf(element, "DeviceID", ""));
    info.setDeviceName(frame::textOf(element, "DeviceName", ""));
    info.setDeviceType(frame::intOf(element, "DeviceType", 0));
    info.setDeviceIP(frame::textOf(element, "DeviceIP", ""));
    info.setDevicePort(frame::uint16Of(element, "DevicePort", 0));
    info.setIPProtoVer(frame::intOf(element, "IPProtoVer", 0));
    info.setUserID(frame::textOf(element, "UserID", ""));
    info.setPassword(frame::textOf(element, "Password", ""));
    info.setManufacturerId(frame::textOf(element, "ManufacturerId", ""));
    info.setManufacturerName(frame::textOf(element, "ManufacturerName", ""));
    info.setProductModel(frame::textOf(element, "ProductModel", ""));
    info.setProductDescription(frame::textOf(element, "ProductDescription", ""));
    info.setMACAddress(frame::textOf(element, "MACAddress", ""));
    info.setBarCode(frame::textOf(element, "BarCode", ""));
    info.setProductionTime(frame::textOf(element, "ProductionTime", ""));
    info.setHardwareModel(frame::textOf(element, "HardwareModel", ""));
    info.setHardwareDescription(frame::textOf(element, "HardwareDescription", ""));
    info.setCameraNum(frame::intOf(element, "CameraNum", 0));
    info.setAlarmInNum(frame::intOf(element, "AlarmInNum", 0));
    info.setAlarmOutNum(frame::intOf(element, "AlarmOutNum", 0));
    info.setRS485Num(frame::intOf(element, "RS485Num", 0));
    info.setState(static_cast<std::uint64_t>(frame::int64Of(element, "State", 0)));

    const TiXmlElement* child = element.FirstChildElement("Version");
    if (child != nullptr)
    {
        Version version;
        if (!VersionXml::readElement(*child, version)) return false;
        info.getVersion() = std::move(version);
    }

    const TiXmlElement* item = frame::firstItem(element, "CameraDevcieList", "CameraDevice");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        CameraDevice camera;
        if (!CameraDeviceXml::readElement(*item, camera)) return false;
        info.getCameraDeviceList().push_back(std::move(camera));
    }
    return true;
}
