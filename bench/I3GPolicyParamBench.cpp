#include "bench/Benchmarks.h"
#include "bench/Comparison.h"
#include "bench/Floor.h"
#include "bench/ScheduleFloor.h"
#include "network/I3GPolicyParamXml.h"

#include <utility>

namespace
{

std::vector<I3GPolicyParam> makePolicies(int count)
{
    std::vector<I3GPolicyParam> policies;
    for (int index = 1; index <= count; ++index)
    {
        const std::string number = std::to_string(100 + index);
        I3GPolicyParam policy;
        policy.setEnableFlag(true);

        I3GMessageConnectPolicyParam& message = policy.get3GMessageConnectPolicyParam();
        message.setEnableFlag(index % 2 == 0);
        message.setConnectMessagePhoneNO("+15550100" + number);
        message.setConnectMessageContent("Connect modem " + number);
        message.setDisconnectMessagePhoneNO("+15550199" + number);
        message.setDisconnectMessageContent("Disconnect modem " + number);

        I3GTimeConnectPolicyParam& time = policy.get3GTimeConnectPolicyParam();
        time.setEnableFlag(true);
        time.setOnlineMode(2);
        time.setScheduleTimeParam(makeSchedule(index));
        policies.push_back(policy);
    }
    return policies;
}

void writeFloorPolicy(TiXmlElement& list, const I3GPolicyParam& policy)
{
    TiXmlElement& element = bare::appendElement(list, "I3GPolicyParam");
    bare::setFlag(element, "EnableFlag", policy.getEnableFlag());

    const I3GMessageConnectPolicyParam& message = policy.get3GMessageConnectPolicyParam();
    TiXmlElement& messageElement = bare::appendElement(element, "I3GMessageConnectPolicyParam");
    bare::setFlag(messageElement, "EnableFlag", message.getEnableFlag());
    messageElement.SetAttribute("ConnectMessagePhoneNO", message.getConnectMessagePhoneNO().c_str());
    messageElement.SetAttribute("ConnectMessageContent", message.getConnectMessageContent().c_str());
    messageElement.SetAttribute("DisconnectMessagePhoneNO", message.getDisconnectMessagePhoneNO().c_str());
    messageElement.SetAttribute("DisconnectMessageContent", message.getDisconnectMessageContent().c_str());

    const I3GTimeConnectPolicyParam& time = policy.get3GTimeConnectPolicyParam();
    TiXmlElement& timeElement = bare::appendElement(element, "I3GTimeConnectPolicyParam");
    bare::setFlag(timeElement, "EnableFlag", time.getEnableFlag());
    timeElement.SetAttribute("OnlineMode", time.getOnlineMode());
    bare::writeSchedule(timeElement, "ScheduleTimeParam", time.getScheduleTimeParam());
}

void readFloorPolicy(const TiXmlElement& element, I3GPolicyParam& policy)
{
    policy.setEnableFlag(bare::flagOf(element, "EnableFlag"));

    const TiXmlElement* messageElement = element.FirstChildElement("I3GMessageConnectPolicyParam");
    if (messageElement != nullptr)
    {
        I3GMessageConnectPolicyParam& message = policy.get3GMessageConnectPolicyParam();
        message.setEnableFlag(bare::flagOf(*messageElement, "EnableFlag"));
        message.setConnectMessagePhoneNO(bare::textOf(*messageElement, "ConnectMessagePhoneNO"));
        message.setConnectMessageContent(bare::textOf(*messageElement, "ConnectMessageContent"));
        message.setDisconnectMessagePhoneNO(bare::textOf(*messageElement, "DisconnectMessagePhoneNO"));
        message.setDisconnectMessageContent(bare::textOf(*messageElement, "DisconnectMessageContent"));
    }

    const TiXmlElement* timeElement = element.FirstChildElement("I3GTimeConnectPolicyParam");
    if (timeElement != nullptr)
    {
        I3GTimeConnectPolicyParam& time = policy.get3GTimeConnectPolicyParam();
        time.setEnableFlag(bare::flagOf(*timeElement, "EnableFlag"));
        time.setOnlineMode(bare::intOf(*timeElement, "OnlineMode", 0));

        const TiXmlElement* schedule = timeElement->FirstChildElement("ScheduleTimeParam");
        if (schedule != nullptr) bare::readSchedule(*schedule, time.getScheduleTimeParam());
    }
}

std::string writeFloor(const std::vector<I3GPolicyParam>& policies)
{
    TiXmlDocument document;
    TiXmlElement& list = bare::appendElement(document, "I3GPolicyParamList");
    for (const I3GPolicyParam& policy : policies)
        writeFloorPolicy(list, policy);
    return bare::print(document);
}

bool readFloor(const std::string& text, std::vector<I3GPolicyParam>& policies)
{
    TiXmlDocument document;
    const TiXmlElement* list = bare::parse(document, text, "I3GPolicyParamList");
    if (list == nullptr) return false;

    const TiXmlElement* item = list->FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        I3GPolicyParam policy;
        readFloorPolicy(*item, policy);
        policies.push_back(std::move(policy));
    }
    return true;
}

std::string writeNode(const std::vector<I3GPolicyParam>& policies)
{
    std::string text;
    I3GPolicyParamXml().createXmlString(policies, text);
    return text;
}

bool readNode(const std::string& text, std::vector<I3GPolicyParam>& policies)
{
    return I3GPolicyParamXml().parseXmlString(text, policies);
}

} // namespace

void addI3GPolicyParam()
{
    const char* emptyText = "<I3GPolicyParamList><I3GPolicyParam>"
                            "<I3GMessageConnectPolicyParam />"
                            "<I3GTimeConnectPolicyParam><ScheduleTimeParam>"
                            "<ScheduleWeekList><ScheduleWeek>"
                            "<ScheduleTimeList><ScheduleTime /></ScheduleTimeList>"
                            "</ScheduleWeek></ScheduleWeekList>"
                            "<ScheduleTimeSegmentList><ScheduleTimeSegment /></ScheduleTimeSegmentList>"
                            "</ScheduleTimeParam></I3GTimeConnectPolicyParam>"
                            "</I3GPolicyParam></I3GPolicyParamList>";
    compare<std::vector<I3GPolicyParam>>("I3GPolicyParam.node", makePolicies(20), emptyText, {writeFloor, readFloor},
                                         {writeNode, readNode});
}
