// <DiskAlarmParamV2 AlarmEnableFlag="true" Interval="60" AlarmThreshold="95">
//     <AlarmOutActionLIST>
//         <AlarmOutAction ... />
//     </AlarmOutActionLIST>
//     <AlarmPTZActionList />
// </DiskAlarmParamV2>
//
// "AlarmOutActionLIST" ends in capitals in this document alone: the peers neither write nor find it otherwise.

#include "alarm/DiskAlarmParamV2Xml.h"

#include "alarm/PolicySteps.h"
#include "core/Frame.h"

#include <cstdio>
#include <string>
#include <utility>

namespace
{

bool readContent(const TiXmlElement& element, const std::string& text, DiskAlarmParamV2& param)
{
    std::printf("3333333333333333333 m_strDiskAlarmParamV2XmlString= %s\n", text.c_str());

    param.setAlarmEnableFlag(frame::flagOf(element, "AlarmEnableFlag", false));

    param.setInterval(frame::intOf(element, "Interval", 0));
    const char* interval = frame::attributeOf(element, "Interval");
    if (interval != nullptr)
        std::printf("4444444444444444 strInterval= %s\n", interval);
    else
        std::printf("222222222222222222222222 ATTR_INTERVAL= %s\n", "Interval");

    param.setAlarmThreshold(frame::intOf(element, "AlarmThreshold", 95));

    if (!frame::readActions(element, "AlarmOutActionLIST", param.getAlarmOutAction())) return false;
    if (!frame::readActions(element, "AlarmPTZActionList", param.getAlarmPTZAction())) return false;

    std::printf("bool DiskAlarmParamV2Xml::parseXmlNode() Interval=%d,AlarmEnableFlag=%d   1111111111111111\n",
                param.getInterval(), param.getAlarmEnableFlag() ? 1 : 0);
    return true;
}

} // namespace

DiskAlarmParamV2Xml::DiskAlarmParamV2Xml() = default;

DiskAlarmParamV2Xml::~DiskAlarmParamV2Xml() = default;

void DiskAlarmParamV2Xml::createXmlNode()
{
    writeElement(document_, param_);
}

bool DiskAlarmParamV2Xml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DiskAlarmParamV2Xml::parseXmlString()
{
    return frame::parseRoot(text_, "DiskAlarmParamV2", document_, node_) && parseXmlNode();
}

bool DiskAlarmParamV2Xml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readContent(*element, text_, param_);
}

TiXmlElement& DiskAlarmParamV2Xml::writeElement(TiXmlNode& parent, const DiskAlarmParamV2& param)
{
    TiXmlElement& element = frame::appendElement(parent, "DiskAlarmParamV2");
    frame::setFlag(element, "AlarmEnableFlag", param.getAlarmEnableFlag());
    frame::setInt(element, "Interval", param.getInterval());
    frame::setInt(element, "AlarmThreshold", param.getAlarmThreshold());

    frame::writeActions(element, "AlarmOutActionLIST", param.getAlarmOutAction());
    frame::writeActions(element, "AlarmPTZActionList", param.getAlarmPTZAction());
    return element;
}

bool DiskAlarmParamV2Xml::readElement(const TiXmlElement& element, DiskAlarmParamV2& param)
{
    return readContent(element, "", param);
}

bool DiskAlarmParamV2Xml::createDomainXmlNode(const DiskAlarmParamV2& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("AlarmEnableFlag", param.getAlarmEnableFlag());
    node->setProperty("Interval", param.getInterval());
    node->setProperty("AlarmThreshold", param.getAlarmThreshold());

    SafePointer<DomainXmlNode> outs = frame::appendNode(node, "AlarmOutActionLIST");
    if (!frame::writeActions(outs, param.getAlarmOutAction())) return false;

    SafePointer<DomainXmlNode> ptzs = frame::appendNode(node, "AlarmPTZActionList");
    return frame::writeActions(ptzs, param.getAlarmPTZAction());
}

bool DiskAlarmParamV2Xml::createDomainXmlNode(const std::vector<DiskAlarmParamV2>& params,
                                              SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const DiskAlarmParamV2& param : params)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "DiskAlarmParamV2");
        if (!createDomainXmlNode(param, item)) return false;
    }
    return true;
}

bool DiskAlarmParamV2Xml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DiskAlarmParamV2& param) const
{
    if (!node) return false;

    param.setAlarmEnableFlag(frame::flagProperty(
        node, "AlarmEnableFlag", false, "DiskAlarmParamV2Xml::parseDomainXmlNode get AlarmEnableFlag failed "));
    param.setInterval(
        frame::intProperty(node, "Interval", 0, "DiskAlarmParamV2Xml::parseDomainXmlNode get Interval failed "));
    param.setAlarmThreshold(frame::intProperty(node, "AlarmThreshold", 0,
                                               "DiskAlarmParamV2Xml::parseDomainXmlNode get AlarmThreshold failed "));

    param.setAlarmOutAction(frame::alarmOutActions(node, "AlarmOutActionLIST"));
    param.setAlarmPTZAction(frame::alarmPTZActions(node, "AlarmPTZActionList"));
    return true;
}

bool DiskAlarmParamV2Xml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                             std::vector<DiskAlarmParamV2>& params) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        DiskAlarmParamV2 param;
        if (!parseDomainXmlNode(frame::nodeOf(*item), param)) return false;
        params.push_back(std::move(param));
    }
    return true;
}

bool DiskAlarmParamV2Xml::createXmlString(const DiskAlarmParamV2& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DiskAlarmParamV2");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool DiskAlarmParamV2Xml::createXmlString(const std::vector<DiskAlarmParamV2>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DiskAlarmParamV2List");
    return createDomainXmlNode(params, node) && DomainXmlNode::toString(node, text);
}

bool DiskAlarmParamV2Xml::parseXmlString(const std::string& text, DiskAlarmParamV2& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DiskAlarmParamV2", node) && parseDomainXmlNode(node, param);
}

bool DiskAlarmParamV2Xml::parseXmlString(const std::string& text, std::vector<DiskAlarmParamV2>& params) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DiskAlarmParamV2List", node) && parseDomainXmlNode(node, params);
}
