// <PTZPreset CameraId="1" PresetName="Gate" PresetId="9" />

#include "ptz/PTZPresetXml.h"

#include "core/Frame.h"

PTZPresetXml::PTZPresetXml() = default;

PTZPresetXml::~PTZPresetXml() = default;

void PTZPresetXml::createXmlNode()
{
    writeElement(document_, preset_);
}

bool PTZPresetXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool PTZPresetXml::parseXmlString()
{
    return frame::parseRoot(text_, "PTZPreset", document_, node_) && parseXmlNode();
}

bool PTZPresetXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, preset_);
}

TiXmlElement& PTZPresetXml::writeElement(TiXmlNode& parent, const PTZPreset& preset)
{
    TiXmlElement& element = frame::appendElement(parent, "PTZPreset");
    frame::setInt(element, "CameraId", preset.getCameraId());
    frame::setText(element, "PresetName", preset.getPresetName());
    frame::setInt(element, "PresetId", preset.getPresetId());
    return element;
}

bool PTZPresetXml::readElement(const TiXmlElement& element, PTZPreset& preset)
{
    preset.setCameraId(frame::intOf(element, "CameraId", 0));
    preset.setPresetName(frame::textOf(element, "PresetName", ""));
    preset.setPresetId(frame::intOf(element, "PresetId", 0));
    return true;
}
