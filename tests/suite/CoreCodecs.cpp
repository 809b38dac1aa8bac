#include "tests/suite/Codecs.h"

#include "core/ColorParamXml.h"
#include "core/IPAddrSegmentXml.h"
#include "core/LineCrossXml.h"
#include "core/PolygonAreaXml.h"
#include "core/StringListXml.h"
#include "core/TimeStructXml.h"
#include "core/VersionXml.h"
#include "tests/suite/Rewrite.h"

namespace
{

bool rewriteAddressSegment(const std::string& text, std::string& rewritten)
{
    SafePointer<DomainXmlNode> parent;
    SafePointer<DomainXmlNode> node;
    IPAddrSegment segment;
    if (!DomainXmlNode::parse(text, "Parent", parent) || !parent->getConfigNode("IPAddrSegment", node) ||
        !IPAddrSegmentXml().parseXmlString(node, segment))
        return false;
    parent->cleanChildren();
    return IPAddrSegmentXml().createXmlString(segment, parent) && DomainXmlNode::toString(parent, rewritten);
}

bool rewriteTimes(const std::string& text, std::string& rewritten)
{
    SafePointer<DomainXmlNode> parent;
    TimeStruct begin;
    TimeStruct end;
    if (!DomainXmlNode::parse(text, "Parent", parent) ||
        !TimeStructXml().parseTimeStruct(parent->getXmlNode(), "BeginTime", begin) ||
        !TimeStructXml().parseTimeStruct(parent->getXmlNode(), "EndTime", end))
        return false;
    TiXmlElement written("Parent");
    TimeStructXml().createTimeStruct(begin, "BeginTime", &written);
    TimeStructXml().createTimeStruct(end, "EndTime", &written);
    rewritten = printed(written);
    return true;
}

} // namespace

std::vector<CodecCase> coreCodecs()
{
    return {
        // clang-format off
        {"core", "ColorParamXml", "document", rewriteDocument<ColorParamXml>},
        {"core", "ColorParamXml", "node", rewriteText<ColorParamXml, ColorParam>},
        {"core", "IPAddrSegmentXml", "node", rewriteAddressSegment},
        {"core", "LineCrossXml", "node", rewriteText<LineCrossXml, LineCross>},
        {"core", "PolygonAreaXml", "list", rewriteText<PolygonAreaXml, PolygonArea>},
        {"core", "StringListXml", "list", rewriteText<StringListXml, std::vector<std::string>>},
        {"core", "TimeStructXml", "node", rewriteText<TimeStructXml, TimeStruct>},
        {"core", "TimeStructXml", "element", rewriteTimes},
        {"core", "VersionXml", "document", rewriteDocument<VersionXml>},
        // clang-format on
    };
}
