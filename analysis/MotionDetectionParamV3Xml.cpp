// <MotionDetectionParamV3 IsGetDetail="true">
//     <IntelligeBaseParam ... />
//     <DetectionAreaV2 WidthCellNumber="2" HighCellNumber="2" Data="AQID" DataLength="3" />
// </MotionDetectionParamV3>

#include "analysis/MotionDetectionParamV3Xml.h"

#include "analysis/RuleSteps.h"
#include "core/Frame.h"

#include <utility>

MotionDetectionParamV3Xml::MotionDetectionParamV3Xml() = default;

MotionDetectionParamV3Xml::~MotionDetectionParamV3Xml() = default;

bool MotionDetectionParamV3Xml::createXmlString(const MotionDetectionParamV3& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("MotionDetectionParamV3");
    if (!frame::appendBasePart(node, param)) return false;

    node->setProperty("IsGetDetail", param.getIsGetDetail());
    return createDetectionAreaV2ToDomainXmlNode(param.getDetectionAreaV2(), node) &&
           DomainXmlNode::toString(node, text);
}

bool MotionDetectionParamV3Xml::parseXmlString(const std::string& text, MotionDetectionParamV3& param)
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "MotionDetectionParamV3", node)) return false;

    MotionDetectionParamV3 read;
    frame::readBasePart(node, read);
    read.setIsGetDetail(frame::flagProperty(node, "IsGetDetail", false));
    DetectionAreaV2 area;
    if (!parseDetectionAreaV2ToDomainXmlNode(node, area)) return false;
    read.setDetectionAreaV2(area);
    param = std::move(read);
    return true;
}

bool MotionDetectionParamV3Xml::createDetectionAreaV2ToDomainXmlNode(const DetectionAreaV2& area,
                                                                     SafePointer<DomainXmlNode>& node)
{
    return frame::appendDetectionAreaV2(node, area);
}

bool MotionDetectionParamV3Xml::parseDetectionAreaV2ToDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                    DetectionAreaV2& area)
{
    return frame::readDetectionAreaV2(node, area);
}
