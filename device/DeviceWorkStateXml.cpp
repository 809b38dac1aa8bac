// <DeviceWorkState>
//     <CpuStatistic CpuPercent="12.5" CpuStatus="1" />
//     <MemStatistic MemTotalSize="2048" MemFreeSize="512" />
//     <DiskStatisticList>
//         <DiskStatistic ... />
//     </DiskStatisticList>
//     <VideoChannelStatisticList>
//         <VideoChannelStatistic ... />
//     </VideoChannelStatisticList>
//     <AlarmInStatisticList>
//         <AlarmInStatistic ... />
//     </AlarmInStatisticList>
//     <AlarmOutStatisticList>
//         <AlarmOutStatistic ... />
//     </AlarmOutStatisticList>
// </DeviceWorkState>

#include "device/DeviceWorkStateXml.h"

#include "core/Frame.h"
#include "device/AlarmInStatisticXml.h"
#include "device/AlarmOutStatisticXml.h"
#include "device/CpuStatisticXml.h"
#include "device/DiskStatisticXml.h"
#include "device/MemStatisticXml.h"
#include "device/VideoChannelStatisticXml.h"

DeviceWorkStateXml::DeviceWorkStateXml() = default;

DeviceWorkStateXml::~DeviceWorkStateXml() = default;

void DeviceWorkStateXml::createXmlNode()
{
    writeElement(document_, state_);
}

bool DeviceWorkStateXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DeviceWorkStateXml::parseXmlString()
{
    return frame::parseRoot(text_, "DeviceWorkState", document_, node_) && parseXmlNode();
}

bool DeviceWorkStateXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, state_);
}

TiXmlElement& DeviceWorkStateXml::writeElement(TiXmlNode& parent, const DeviceWorkState& state)
{
    TiXmlElement& element = frame::appendElement(parent, "DeviceWorkState");
    CpuStatisticXml::writeElement(element, state.getCpuStatistic());
    MemStatisticXml::writeElement(element, state.getMemStatistic());

    TiXmlElement& disks = frame::appendElement(element, "DiskStatisticList");
    for (const DiskStatistic& disk : state.getDiskStatisticList())
        DiskStatisticXml::writeElement(disks, disk);

    TiXmlElement& channels = frame::appendElement(element, "VideoChannelStatisticList");
    for (const VideoChannelStatistic& channel : state.getVideoChannelStatisticList())
        VideoChannelStatisticXml::writeElement(channels, channel);

    TiXmlElement& inputs = frame::appendElement(element, "AlarmInStatisticList");
    for (const AlarmInStatistic& input : state.getAlarmInStatisticList())
        AlarmInStatisticXml::writeElement(inputs, input);

    TiXmlElement& outputs = frame::appendElement(element, "AlarmOutStatisticList");
    for (const AlarmOutStatistic& output : state.getAlarmOutStatisticList())
        AlarmOutStatisticXml::writeElement(outputs, output);
    return element;
}

bool DeviceWorkStateXml::readElement(const TiXmlElement& element, DeviceWorkState& state)
{
    const TiXmlElement* child = element.FirstChildElement("CpuStatistic");
    if (child != nullptr)
    {
        CpuStatistic cpu;
        if (!CpuStatisticXml::readElement(*child, cpu)) return false;
        state.setCpuStatistic(cpu);
    }

    child = element.FirstChildElement("MemStatistic");
    if (child != nullptr)
    {
        MemStatistic memory;
        if (!MemStatisticXml::readElement(*child, memory)) return false;
        state.setMemStatistic(memory);
    }

    const TiXmlElement* item = frame::firstItem(element, "DiskStatisticList", "DiskStatistic");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        DiskStatistic disk;
        if (!DiskStatisticXml::readElement(*item, disk)) return false;
        state.getDiskStatisticList().push_back(disk);
    }

    item = frame::firstItem(element, "VideoChannelStatisticList", "VideoChannelStatistic");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoChannelStatistic channel;
        if (!VideoChannelStatisticXml::readElement(*item, channel)) return false;
        state.getVideoChannelStatisticList().push_back(channel);
    }

    item = frame::firstItem(element, "AlarmInStatisticList", "AlarmInStatistic");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmInStatistic input;
        if (!AlarmInStatisticXml::readElement(*item, input)) return false;
        state.getAlarmInStatisticList().push_back(input);
    }

    item = frame::firstItem(element, "AlarmOutStatisticList", "AlarmOutStatistic");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmOutStatistic output;
        if (!AlarmOutStatisticXml::readElement(*item, output)) return false;
        state.getAlarmOutStatisticList().push_back(output);
    }
    return true;
}
