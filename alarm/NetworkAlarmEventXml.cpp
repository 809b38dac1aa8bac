// <NetworkAlarmEvent NetworkCardId="1" AlarmEnableFlag="true">
//     <AlarmOutActionList>
//         <AlarmOutAction ... />
//     </AlarmOutActionList>
//     <AlarmPTZActionList />
// </NetworkAlarmEvent>

#include "alarm/NetworkAlarmEventXml.h"

#include "alarm/PolicySteps.h"
#include "core/Frame.h"

#include <cstdio>

NetworkAlarmEventXml::NetworkAlarmEventXml() = default;

NetworkAlarmEventXml::~NetworkAlarmEventXml() = default;

void NetworkAlarmEventXml::createXmlNode()
{
    writeElement(document_, event_);
}

bool NetworkAlarmEventXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool NetworkAlarmEventXml::parseXmlString()
{
    return frame::parseRoot(text_, "NetworkAlarmEvent", document_, node_) && parseXmlNode();
}

bool NetworkAlarmEventXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, event_);
}

TiXmlElement& NetworkAlarmEventXml::writeElement(TiXmlNode& parent, const NetworkAlarmEvent& event)
{
    TiXmlElement& element = frame::appendElement(parent, "NetworkAlarmEvent");
    frame::setInt(element, "NetworkCardId", event.getNetworkCardId());
    frame::setFlag(element, "AlarmEnableFlag", event.getAlarmEnableFlag());

    frame::writeActions(element, "AlarmOutActionList", event.getAlarmOutAction());
    frame::writeActions(element, "AlarmPTZActionList", event.getAlarmPTZAction());
    return element;
}

bool NetworkAlarmEventXml::readElement(const TiXmlElement& element, NetworkAlarmEvent& event)
{
    event.setNetworkCardId(frame::intOf(element, "NetworkCardId", 0));
    event.setAlarmEnableFlag(frame::flagOf(element, "AlarmEnableFlag", false));

    if (!frame::readActions(element, "AlarmOutActionList", event.getAlarmOutAction())) return false;
    if (!frame::readActions(element, "AlarmPTZActionList", event.getAlarmPTZAction())) return false;

    std::printf("NetworkAlarmEventXml::parseXmlNode() NetworkCardId=%d,AlarmEnableFlag=%d  1111111111111111\n",
                event.getNetworkCardId(), event.getAlarmEnableFlag() ? 1 : 0);
    return true;
}
