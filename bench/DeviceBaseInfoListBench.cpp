#include "bench/Benchmarks.h"
#include "bench/CameraDeviceFloor.h"
#include "bench/Comparison.h"
#include "bench/Floor.h"
#include "device/DeviceBaseInfoListXml.h"

#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <utility>

namespace
{

std::vector<DeviceBaseInfo> makeDevices(int count)
{
    std::vector<DeviceBaseInfo> devices;
    for (int index = 0; index < count; ++index)
    {
        const std::string number = std::to_string(100 + index);
        DeviceBaseInfo device;
        device.setDeviceId("3402000000132000" + number);
        device.setDeviceName("Recorder, building " + number);
        device.setDeviceType(2);
        device.setDeviceIP("192.168.20." + number);
        device.setDevicePort(static_cast<std::uint16_t>(8000 + index));
        device.setIPProtoVer(1);
        device.setUserID("operator");
        device.setPassword("secret" + number);
        device.setManufacturerId("M" + number);
        device.setManufacturerName("Example Video Works");
        device.setProductModel("NVR-64-" + number);
        device.setProductDescription("Network video recorder, 64 channels");
        device.setMACAddress("00:1B:44:11:3A:B7");
        device.setBarCode("4006381333" + number);
        device.setProductionTime("2015-03-02 08:09:07");
        device.setHardwareModel("HW-9");
        device.setHardwareDescription("Main board of the second series");
        device.setCameraNum(4);
        device.setAlarmInNum(16);
        device.setAlarmOutNum(8);
        device.setRS485Num(2);
        device.setState((std::uint64_t{1} << 40) + static_cast<std::uint64_t>(index));
        device.getVersion().setHardwareVer("2.1");
        device.getVersion().setSoftwareVer("4.30.005, build " + number);
        device.setCameraDeviceList(makeCameras(4));
        devices.push_back(device);
    }
    return devices;
}

void writeFloorDevice(TiXmlElement& list, const DeviceBaseInfo& device)
{
    TiXmlElement& element = bare::appendElement(list, "DeviceBaseInfo");
    element.SetAttribute("DeviceID", device.getDeviceId().c_str());
    element.SetAttribute("DeviceName", device.getDeviceName().c_str());
    element.SetAttribute("DeviceType", device.getDeviceType());
    element.SetAttribute("DeviceIP", device.getDeviceIP().c_str());
    element.SetAttribute("DevicePort", device.getDevicePort());
    element.SetAttribute("IPProtoVer", device.getIPProtoVer());
    element.SetAttribute("UserID", device.getUserID().c_str());
    element.SetAttribute("Password", device.getPassword().c_str());
    element.SetAttribute("ManufacturerId", device.getManufacturerId().c_str());
    element.SetAttribute("ManufacturerName", device.getManufacturerName().c_str());
    element.SetAttribute("ProductModel", device.getProductModel().c_str());
    element.SetAttribute("ProductDescription", device.getProductDescription().c_str());
    element.SetAttribute("MACAddress", device.getMACAddress().c_str());
    element.SetAttribute("BarCode", device.getBarCode().c_str());
    element.SetAttribute("ProductionTime", device.getProductionTime().c_str());
    element.SetAttribute("HardwareModel", device.getHardwareModel().c_str());
    element.SetAttribute("HardwareDescription", device.getHardwareDescription().c_str());
    element.SetAttribute("CameraNum", device.getCameraNum());
    element.SetAttribute("AlarmInNum", device.getAlarmInNum());
    element.SetAttribute("AlarmOutNum", device.getAlarmOutNum());
    element.SetAttribute("RS485Num", device.getRS485Num());

    char state[32];
    std::snprintf(state, sizeof(state), "%" PRId64, static_cast<std::int64_t>(device.getState()));
    element.SetAttribute("State", state);

    TiXmlElement& version = bare::appendElement(element, "Version");
    version.SetAttribute("HardwareVer", device.getVersion().getHardwareVer().c_str());
    version.SetAttribute("SoftwareVer", device.getVersion().getSoftwareVer().c_str());

    bare::writeCameras(bare::appendElement(element, "CameraDevcieList"), device.getCameraDeviceList());
}

void readFloorDevice(const TiXmlElement& element, DeviceBaseInfo& device)
{
    device.setDeviceId(bare::textOf(element, "DeviceID"));
    device.setDeviceName(bare::textOf(element, "DeviceName"));
    device.setDeviceType(bare::intOf(element, "DeviceType", 0));
    device.setDeviceIP(bare::textOf(element, "DeviceIP"));
    device.setDevicePort(static_cast<std::uint16_t>(bare::intOf(element, "DevicePort", 0)));
    device.setIPProtoVer(bare::intOf(element, "IPProtoVer", 0));
    device.setUserID(bare::textOf(element, "UserID"));
    device.setPassword(bare::textOf(element, "Password"));
    device.setManufacturerId(bare::textOf(element, "ManufacturerId"));
    device.setManufacturerName(bare::textOf(element, "ManufacturerName"));
    device.setProductModel(bare::textOf(element, "ProductModel"));
    device.setProductDescription(bare::textOf(element, "ProductDescription"));
    device.setMACAddress(bare::textOf(element, "MACAddress"));
    device.setBarCode(bare::textOf(element, "BarCode"));
    device.setProductionTime(bare::textOf(element, "ProductionTime"));
    device.setHardwareModel(bare::textOf(element, "HardwareModel"));
    device.setHardwareDescription(bare::textOf(element, "HardwareDescription"));
    device.setCameraNum(bare::intOf(element, "CameraNum", 0));
    device.setAlarmInNum(bare::intOf(element, "AlarmInNum", 0));
    device.setAlarmOutNum(bare::intOf(element, "AlarmOutNum", 0));
    device.setRS485Num(bare::intOf(element, "RS485Num", 0));

    const char* state = element.Attribute("State");
    device.setState(state != nullptr ? static_cast<std::uint64_t>(std::strtoll(state, nullptr, 10)) : 0);

    const TiXmlElement* version = element.FirstChildElement("Version");
    if (version != nullptr)
    {
        device.getVersion().setHardwareVer(bare::textOf(*version, "HardwareVer"));
        device.getVersion().setSoftwareVer(bare::textOf(*version, "SoftwareVer"));
    }

    const TiXmlElement* cameras = element.FirstChildElement("CameraDevcieList");
    if (cameras != nullptr) bare::readCameras(cameras->FirstChildElement("CameraDevice"), device.getCameraDeviceList());
}

std::string writeFloor(const std::vector<DeviceBaseInfo>& devices)
{
    TiXmlDocument document;
    TiXmlElement& list = bare::appendElement(document, "DeviceBaseInfoList");
    for (const DeviceBaseInfo& device : devices)
        writeFloorDevice(list, device);
    return bare::print(document);
}

bool readFloor(const std::string& text, std::vector<DeviceBaseInfo>& devices)
{
    TiXmlDocument document;
    const TiXmlElement* list = bare::parse(document, text, "DeviceBaseInfoList");
    if (list == nullptr) return false;

    const TiXmlElement* item = list->FirstChildElement("DeviceBaseInfo");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        DeviceBaseInfo device;
        readFloorDevice(*item, device);
        devices.push_back(std::move(device));
    }
    return true;
}

std::string writeDocument(const std::vector<DeviceBaseInfo>& devices)
{
    DeviceBaseInfoListXml codec;
    codec.setDeviceBaseInfoList(devices);
    codec.createXmlString();
    return std::move(codec.getXmlString());
}

bool readDocument(const std::string& text, std::vector<DeviceBaseInfo>& devices)
{
    DeviceBaseInfoListXml codec;
    codec.setXmlString(text);
    if (!codec.parseXmlString()) return false;
    devices = std::move(codec.getDeviceBaseInfoList());
    return true;
}

} // namespace

void addDeviceBaseInfoList()
{
    const char* emptyText = "<DeviceBaseInfoList><DeviceBaseInfo /></DeviceBaseInfoList>";
    compare<std::vector<DeviceBaseInfo>>("DeviceBaseInfoList.document", makeDevices(100), emptyText,
                                         {writeFloor, readFloor}, {writeDocument, readDocument});
}
