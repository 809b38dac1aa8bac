// <SnapshotParam CameraId="1" SnapshotEnableFlag="true" ImageFormatId="2" Quality="3" ShootTimes="4" PhotoFormat="5" />

#include "snapshot/SnapshotParamXml.h"

#include "core/Frame.h"

SnapshotParamXml::SnapshotParamXml() = default;

SnapshotParamXml::~SnapshotParamXml() = default;

void SnapshotParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool SnapshotParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SnapshotParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "SnapshotParam", document_, node_) && parseXmlNode();
}

bool SnapshotParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& SnapshotParamXml::writeElement(TiXmlNode& parent, const SnapshotParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "SnapshotParam");
    frame::setInt(element, "CameraId", param.getCameraId());
    frame::setFlag(element, "SnapshotEnableFlag", param.getSnapshotEnableFlag());
    frame::setInt(element, "ImageFormatId", param.getImageFormatId());
    frame::setInt(element, "Quality", param.getQuality());
    frame::setInt(element, "ShootTimes", param.getShootTimes());
    frame::setInt(element, "PhotoFormat", param.getPhotoFormat());
    return element;
}

bool SnapshotParamXml::readElement(const TiXmlElement& element, SnapshotParam& param)
{
    param.setCameraId(frame::intOf(element, "CameraId", 0));
    param.setSnapshotEnableFlag(frame::flagOf(element, "SnapshotEnableFlag", false));
    param.setImageFormatId(frame::intOf(element, "ImageFormatId", 0));
    param.setQuality(frame::intOf(element, "Quality", 0));
    param.setShootTimes(frame::intOf(element, "ShootTimes", 0));
    param.setPhotoFormat(frame::intOf(element, "PhotoFormat", 0));
    return true;
}
