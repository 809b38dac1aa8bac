// <RecordStateList>
//     <RecordState DeviceId="D1" CameraId="1" State="1" />
// </RecordStateList>

#include "device/RecordStateXml.h"

#include "core/Frame.h"

#include <utility>

RecordStateXml::RecordStateXml() = default;

RecordStateXml::~RecordStateXml() = default;

void RecordStateXml::createXmlNode()
{
    writeElement(document_, states_);
}

bool RecordStateXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordStateXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordStateList", document_, node_) && parseXmlNode();
}

bool RecordStateXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, states_);
}

TiXmlElement& RecordStateXml::writeElement(TiXmlNode& parent, const std::vector<RecordState>& states)
{
    TiXmlElement& element = frame::appendElement(parent, "RecordStateList");
    for (const RecordState& state : states)
    {
        TiXmlElement& item = frame::appendElement(element, "RecordState");
        frame::setText(item, "DeviceId", state.getDeviceId());
        frame::setInt(item, "CameraId", state.getCameraId());
        frame::setInt(item, "State", state.getState());
    }
    return element;
}

bool RecordStateXml::readElement(const TiXmlElement& element, std::vector<RecordState>& states)
{
    const TiXmlElement* item = frame::firstItem(element, "RecordState");
    for (; item != nullptr; item = item->NextSiblingElement("RecordState"))
    {
        RecordState state;
        state.setDeviceId(frame::textOf(*item, "DeviceId", ""));
        state.setCameraId(frame::intOf(*item, "CameraId", 0));
        state.setState(frame::intOf(*item, "State", 0));
        states.push_back(std::move(state));
    }
    return true;
}
