// <MotionDetectionParam ToUpCheckFlag="true" ToDownCheckFlag="true" ToLeftCheckFlag="true" ToRightCheckFlag="true"
//                       AreaMaskFlag="false" CheckBlockNum="1" Sensitivity="50" ImageFormatId="1" FrameInterval="5">
//     <DetectionAreaList>
//         <DetectionArea TopX="0" TopY="0" Width="64" High="32" />
//     </DetectionAreaList>
// </MotionDetectionParam>

#include "alarm/MotionDetectionParamXml.h"

#include "alarm/DetectionAreaXml.h"
#include "core/Frame.h"

MotionDetectionParamXml::MotionDetectionParamXml() = default;

MotionDetectionParamXml::~MotionDetectionParamXml() = default;

void MotionDetectionParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool MotionDetectionParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool MotionDetectionParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "MotionDetectionParam", document_, node_) && parseXmlNode();
}

bool MotionDetectionParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& MotionDetectionParamXml::writeElement(TiXmlNode& parent, const MotionDetectionParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "MotionDetectionParam");
    frame::setFlag(element, "ToUpCheckFlag", param.getToUpCheckFlag());
    frame::setFlag(element, "ToDownCheckFlag", param.getToDownCheckFlag());
    frame::setFlag(element, "ToLeftCheckFlag", param.getToLeftCheckFlag());
    frame::setFlag(element, "ToRightCheckFlag", param.getToRightCheckFlag());
    frame::setFlag(element, "AreaMaskFlag", param.getAreaMaskFlag());
    frame::setInt(element, "CheckBlockNum", param.getCheckBlockNum());
    frame::setInt(element, "Sensitivity", param.getSensitivity());
    frame::setInt(element, "ImageFormatId", param.getImageFormatId());
    frame::setInt(element, "FrameInterval", param.getFrameInterval());

    TiXmlElement& areas = frame::appendElement(element, "DetectionAreaList");
    for (const DetectionArea& area : param.getDetectionArea())
        DetectionAreaXml::writeElement(areas, area);
    return element;
}

bool MotionDetectionParamXml::readElement(const TiXmlElement& element, MotionDetectionParam& param)
{
    param.setToUpCheckFlag(frame::flagOf(element, "ToUpCheckFlag", false));
    param.setToDownCheckFlag(frame::flagOf(element, "ToDownCheckFlag", false));
    param.setToLeftCheckFlag(frame::flagOf(element, "ToLeftCheckFlag", false));
    param.setToRightCheckFlag(frame::flagOf(element, "ToRightCheckFlag", false));
    param.setAreaMaskFlag(frame::flagOf(element, "AreaMaskFlag", false));
    param.setCheckBlockNum(frame::intOf(element, "CheckBlockNum", 0));
    param.setSensitivity(frame::intOf(element, "Sensitivity", 0));
    param.setImageFormatId(frame::intOf(element, "ImageFormatId", 0));
    param.setFrameInterval(frame::intOf(element, "FrameInterval", 0));

    const TiXmlElement* item = frame::firstItem(element, "DetectionAreaList", "DetectionArea");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        DetectionArea area;
        if (!DetectionAreaXml::readElement(*item, area)) return false;
        param.getDetectionArea().push_back(area);
    }
    return true;
}
