// <TrafficSnapshotPolicy>
//     <SnapshotTriggerParameter CameraId="1" ... SparkType="10" ShutterTime="11" Gain="12" SparkState="13"
//                               SparkDelay="14">
//         <AlarmInId ID="15" />
//     </SnapshotTriggerParameter>
// </TrafficSnapshotPolicy>

#include "snapshot/TrafficSnapshotPolicyXml.h"

#include "core/Frame.h"
#include "snapshot/SnapshotTriggerParameterXml.h"

#include <utility>
#include <vector>

TrafficSnapshotPolicyXml::TrafficSnapshotPolicyXml() = default;

TrafficSnapshotPolicyXml::~TrafficSnapshotPolicyXml() = default;

bool TrafficSnapshotPolicyXml::createXmlString(const TrafficSnapshotPolicy& policy, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("TrafficSnapshotPolicy");
    return create(policy, node) && DomainXmlNode::toString(node, text);
}

bool TrafficSnapshotPolicyXml::parseXmlString(const std::string& text, TrafficSnapshotPolicy& policy) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "TrafficSnapshotPolicy", node) && parse(node, policy);
}

bool TrafficSnapshotPolicyXml::create(const TrafficSnapshotPolicy& policy, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const SnapshotTriggerParameter& trigger : policy.getSnapshotTriggerParameterList())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "SnapshotTriggerParameter");
        if (!createSnapshotTriggerParameter(trigger, item)) return false;
        item->setProperty("ShutterTime", trigger.getShutterTime());
        item->setProperty("Gain", trigger.getGain());
        item->setProperty("SparkState", trigger.getSparkState());
        item->setProperty("SparkDelay", trigger.getSparkDelay());
    }
    return true;
}

bool TrafficSnapshotPolicyXml::parse(const SafePointer<DomainXmlNode>& node, TrafficSnapshotPolicy& policy) const
{
    if (!node) return false;

    std::vector<SnapshotTriggerParameter> triggers;
    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        if (item->ValueStr() != "SnapshotTriggerParameter") continue;

        SnapshotTriggerParameter trigger;
        if (!parseSnapshotTriggerParameter(frame::nodeOf(*item), trigger)) return false;
        triggers.push_back(std::move(trigger));
    }
    policy.getSnapshotTriggerParameterList() = std::move(triggers);
    return true;
}

bool TrafficSnapshotPolicyXml::createSnapshotTriggerParameter(const SnapshotTriggerParameter& trigger,
                                                              SafePointer<DomainXmlNode>& node) const
{
    TiXmlElement* element = node ? node->getXmlNode() : nullptr;
    if (element == nullptr) return false;

    // A trigger by itself ends here, as in the document of its own: its peers do not have the four values that follow.
    SnapshotTriggerParameterXml::fillElement(*element, trigger);
    return true;
}

bool TrafficSnapshotPolicyXml::parseSnapshotTriggerParameter(const SafePointer<DomainXmlNode>& node,
                                                             SnapshotTriggerParameter& trigger) const
{
    const TiXmlElement* element = node ? node->getXmlNode() : nullptr;
    if (element == nullptr || !SnapshotTriggerParameterXml::readElement(*element, trigger)) return false;

    trigger.setShutterTime(frame::intProperty(node, "ShutterTime", 0));
    trigger.setGain(frame::intProperty(node, "Gain", 0));
    trigger.setSparkState(frame::intProperty(node, "SparkState", 0));
    trigger.setSparkDelay(frame::intProperty(node, "SparkDelay", 0));
    return true;
}
