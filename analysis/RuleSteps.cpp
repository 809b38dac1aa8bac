#include "analysis/RuleSteps.h"

#include "alarm/DetectionAreaXmlV2.h"
#include "analysis/IntelligeBaseParamXml.h"
#include "core/Frame.h"
#include "core/LineCrossXml.h"
#include "core/PolygonAreaXml.h"

#include <utility>

namespace frame
{

namespace
{

/// The element of @p node; null if that is empty.
TiXmlElement* elementOf(const SafePointer<DomainXmlNode>& node)
{
    return node ? node->getXmlNode() : nullptr;
}

/// The first child of @p node called @p name; null without it.
const TiXmlElement* childOf(const SafePointer<DomainXmlNode>& node, const char* name)
{
    const TiXmlElement* element = elementOf(node);
    return element != nullptr ? element->FirstChildElement(name) : nullptr;
}

} // namespace

bool appendBasePart(SafePointer<DomainXmlNode>& node, const IntelligeBaseParam& base)
{
    if (!node) return false;

    SafePointer<DomainXmlNode> child = appendNode(node, "IntelligeBaseParam");
    return IntelligeBaseParamXml().createDomainXmlNode(base, child);
}

void readBasePart(const SafePointer<DomainXmlNode>& node, IntelligeBaseParam& base)
{
    SafePointer<DomainXmlNode> child;
    if (!node->getConfigNode("IntelligeBaseParam", child) || !IntelligeBaseParamXml().parseDomainXmlNode(child, base))
        base = IntelligeBaseParam();
}

bool appendPolygonArea(SafePointer<DomainXmlNode>& node, const PolygonArea& area)
{
    TiXmlElement* element = elementOf(node);
    if (element == nullptr) return false;

    PolygonAreaXml::writeElement(*element, area);
    return true;
}

bool readPolygonArea(const SafePointer<DomainXmlNode>& node, PolygonArea& area)
{
    const TiXmlElement* child = childOf(node, "PolygonArealist");
    return child != nullptr && PolygonAreaXml::readElement(*child, area);
}

bool appendLineCross(SafePointer<DomainXmlNode>& node, const LineCross& line)
{
    TiXmlElement* element = elementOf(node);
    if (element == nullptr) return false;

    LineCrossXml::writeElement(*element, line);
    return true;
}

bool readLineCross(const SafePointer<DomainXmlNode>& node, LineCross& line)
{
    const TiXmlElement* child = childOf(node, "LineCross");
    return child != nullptr && LineCrossXml::readElement(*child, line);
}

bool appendDetectionAreaV2(SafePointer<DomainXmlNode>& node, const DetectionAreaV2& area)
{
    TiXmlElement* element = elementOf(node);
    return element != nullptr && DetectionAreaXmlV2::writeElement(*element, area) == 0;
}

bool readDetectionAreaV2(const SafePointer<DomainXmlNode>& node, DetectionAreaV2& area)
{
    const TiXmlElement* child = childOf(node, "DetectionAreaV2");
    DetectionAreaV2 read;
    if (child == nullptr || !DetectionAreaXmlV2::readElement(*child, read)) return false;

    area = std::move(read);
    return true;
}

TiXmlElement* firstRegion(const SafePointer<DomainXmlNode>& node)
{
    TiXmlElement* element = node->getXmlNode();
    TiXmlElement* list = element != nullptr ? element->FirstChildElement("RegionList") : nullptr;
    return list != nullptr ? list->FirstChildElement("Region") : nullptr;
}

void setTarget(SafePointer<DomainXmlNode>& node, const TargetRegionParam& region)
{
    node->setProperty("TargetTypeConstrain", region.getTargetTypeConstrain());
    node->setProperty("TargetType", region.getTargetType());
    node->setProperty("TargetSizeConstrain", region.getTargetSizeConstrain());
    node->setProperty("MinTargetSize", region.getMinTargetSize());
    node->setProperty("MaxTargetSize", region.getMaxTargetSize());
}

void readTarget(const SafePointer<DomainXmlNode>& node, TargetRegionParam& region)
{
    region.setTargetTypeConstrain(flagProperty(node, "TargetTypeConstrain", false));
    region.setTargetType(intProperty(node, "TargetType", 1));
    region.setTargetSizeConstrain(flagProperty(node, "TargetSizeConstrain", false));
    region.setMinTargetSize(intProperty(node, "MinTargetSize", 1000));
    region.setMaxTargetSize(intProperty(node, "MaxTargetSize", 100000));
}

void setLinger(SafePointer<DomainXmlNode>& node, const LingerRegionParam& region)
{
    node->setProperty("MinTargetSize", region.getMinTargetSize());
    node->setProperty("MaxTargetSize", region.getMaxTargetSize());
    node->setProperty("MinTime", region.getMinTime());
}

void readLinger(const SafePointer<DomainXmlNode>& node, LingerRegionParam& region)
{
    region.setMinTargetSize(intProperty(node, "MinTargetSize", 0));
    region.setMaxTargetSize(intProperty(node, "MaxTargetSize", 0));
    region.setMinTime(intProperty(node, "MinTime", 0));
}

} // namespace frame
