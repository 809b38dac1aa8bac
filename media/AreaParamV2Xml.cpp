// <AreaParam TopX="0.1" TopY="0.2" Width="0.3" Height="0.4" />

#include "media/AreaParamV2Xml.h"

#include "core/Conversions.h"
#include "core/Frame.h"

namespace
{

bool readNumber(const SafePointer<DomainXmlNode>& node, const char* name, double& number)
{
    std::string text;
    if (!node->getProperty(name, text)) return false;
    number = frame::doubleIn(text.c_str());
    return true;
}

} // namespace

AreaParamV2Xml::AreaParamV2Xml() = default;

AreaParamV2Xml::~AreaParamV2Xml() = default;

bool AreaParamV2Xml::createXmlString(const AreaParamV2& area, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AreaParam");
    node->setProperty("TopX", frame::doubleText(area.getTopX()).characters);
    node->setProperty("TopY", frame::doubleText(area.getTopY()).characters);
    node->setProperty("Width", frame::doubleText(area.getWidth()).characters);
    node->setProperty("Height", frame::doubleText(area.getHeight()).characters);
    return DomainXmlNode::toString(node, text);
}

bool AreaParamV2Xml::parseXmlString(const std::string& text, AreaParamV2& area) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "AreaParam", node)) return false;

    double number = 0.0;
    if (!readNumber(node, "TopX", number)) return false;
    area.setTopX(number);
    if (!readNumber(node, "TopY", number)) return false;
    area.setTopY(number);
    if (!readNumber(node, "Width", number)) return false;
    area.setWidth(number);
    if (!readNumber(node, "Height", number)) return false;
    area.setHeight(number);
    return true;
}
