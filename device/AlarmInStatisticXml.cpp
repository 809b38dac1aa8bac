// <AlarmInStatistic AlarmInId="1" AlarmInStatus="0" LastAlarmTime="1500000000" />

#include "device/AlarmInStatisticXml.h"

#include "core/Frame.h"

AlarmInStatisticXml::AlarmInStatisticXml() = default;

AlarmInStatisticXml::~AlarmInStatisticXml() = default;

void AlarmInStatisticXml::createXmlNode()
{
    writeElement(document_, input_);
}

bool AlarmInStatisticXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmInStatisticXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmInStatistic", document_, node_) && parseXmlNode();
}

bool AlarmInStatisticXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, input_);
}

TiXmlElement& AlarmInStatisticXml::writeElement(TiXmlNode& parent, const AlarmInStatistic& input)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmInStatistic");
    frame::setInt(element, "AlarmInId", input.getAlarmInId());
    frame::setInt(element, "AlarmInStatus", input.getAlarmInStatus());
    frame::setInt64(element, "LastAlarmTime", input.getLastAlarmTime());
    return element;
}

bool AlarmInStatisticXml::readElement(const TiXmlElement& element, AlarmInStatistic& input)
{
    input.setAlarmInId(frame::intOf(element, "AlarmInId", 0));
    // Not 0: peers that leave the state out count on 1.
    input.setAlarmInStatus(static_cast<std::uint8_t>(frame::intOf(element, "AlarmInStatus", 1)));
    input.setLastAlarmTime(frame::longOf(element, "LastAlarmTime", 0));
    return true;
}
