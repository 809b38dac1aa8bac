// <AlarmOutStatistic AlarmOutId="1" AlarmOutStatus="0" LastAlarmTime="1500000000" />

#include "device/AlarmOutStatisticXml.h"

#include "core/Frame.h"

AlarmOutStatisticXml::AlarmOutStatisticXml() = default;

AlarmOutStatisticXml::~AlarmOutStatisticXml() = default;

void AlarmOutStatisticXml::createXmlNode()
{
    writeElement(document_, output_);
}

bool AlarmOutStatisticXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmOutStatisticXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmOutStatistic", document_, node_) && parseXmlNode();
}

bool AlarmOutStatisticXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, output_);
}

TiXmlElement& AlarmOutStatisticXml::writeElement(TiXmlNode& parent, const AlarmOutStatistic& output)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmOutStatistic");
    frame::setInt(element, "AlarmOutId", output.getAlarmOutId());
    frame::setInt(element, "AlarmOutStatus", output.getAlarmOutStatus());
    frame::setInt64(element, "LastAlarmTime", output.getLastAlarmTime());
    return element;
}

bool AlarmOutStatisticXml::readElement(const TiXmlElement& element, AlarmOutStatistic& output)
{
    output.setAlarmOutId(frame::intOf(element, "AlarmOutId", 0));
    // Not 0: peers that leave the state out count on 1.
    output.setAlarmOutStatus(static_cast<std::uint8_t>(frame::intOf(element, "AlarmOutStatus", 1)));
    output.setLastAlarmTime(frame::longOf(element, "LastAlarmTime", 0));
    return true;
}
