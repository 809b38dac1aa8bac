// <MonitorParamList>
//     <MonitorParam MonitorId="1" MonitorType="2" MonitorResolution="3" />
// </MonitorParamList>

#include "display/MonitorParamXml.h"

#include "core/Frame.h"

namespace
{

void writeMonitor(const MonitorParam& monitor, SafePointer<DomainXmlNode>& node)
{
    node->setProperty("MonitorId", monitor.getMonitorId());
    node->setProperty("MonitorType", monitor.getMonitorType());
    node->setProperty("MonitorResolution", monitor.getMonitorResolutionID());
}

void readMonitor(const SafePointer<DomainXmlNode>& node, MonitorParam& monitor)
{
    monitor.setMonitorId(frame::intProperty(node, "MonitorId", monitor.getMonitorId()));
    monitor.setMonitorType(frame::intProperty(node, "MonitorType", monitor.getMonitorType()));
    monitor.setMonitorResolutionID(frame::intProperty(node, "MonitorResolution", monitor.getMonitorResolutionID()));
}

} // namespace

MonitorParamXml::MonitorParamXml() = default;

MonitorParamXml::~MonitorParamXml() = default;

bool MonitorParamXml::createXmlString(const MonitorParam& monitor, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("MonitorParam");
    writeMonitor(monitor, node);
    return DomainXmlNode::toString(node, text);
}

bool MonitorParamXml::createXmlString(const std::vector<MonitorParam>& monitors, std::string& text) const
{
    SafePointer<DomainXmlNode> root = frame::makeNode("MonitorParamList");
    for (const MonitorParam& monitor : monitors)
    {
        SafePointer<DomainXmlNode> node = frame::appendNode(root, "MonitorParam");
        writeMonitor(monitor, node);
    }
    return DomainXmlNode::toString(root, text);
}

bool MonitorParamXml::parseXmlString(const std::string& text, MonitorParam& monitor) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "MonitorParam", node)) return false;
    readMonitor(node, monitor);
    return true;
}

bool MonitorParamXml::parseXmlString(const std::string& text, std::vector<MonitorParam>& monitors) const
{
    SafePointer<DomainXmlNode> root;
    if (!DomainXmlNode::parse(text, "MonitorParamList", root)) return false;

    TiXmlElement* item = frame::firstChild(root);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        MonitorParam monitor;
        readMonitor(frame::nodeOf(*item), monitor);
        monitors.push_back(monitor);
    }
    return true;
}
