// <TimeZoneParam TimeZone="8" DSTOpenFlag="true" DSTOffset="60" BeginMonth="3" BeginWeekly="4" BeginWeekDays="5"
//                BeginTime="7200" EndMonth="10" EndWeekly="2" EndWeekDays="6" EndTime="10800" />

#include "network/TimeZoneSteps.h"

#include "core/Frame.h"

namespace frame
{

void writeTimeZone(TiXmlElement& element, const char* zone, const TimeZoneParam& param)
{
    setInt(element, zone, param.getTimeZone());
    setFlag(element, "DSTOpenFlag", param.getDSTOpenFlag());
    setInt(element, "DSTOffset", param.getDSTOffset());
    setInt(element, "BeginMonth", param.getBeginMonth());
    setInt(element, "BeginWeekly", param.getBeginWeekly());
    setInt(element, "BeginWeekDays", param.getBeginWeekDays());
    setUnsigned(element, "BeginTime", param.getBeginTime());
    setInt(element, "EndMonth", param.getEndMonth());
    setInt(element, "EndWeekly", param.getEndWeekly());
    setInt(element, "EndWeekDays", param.getEndWeekDays());
    setUnsigned(element, "EndTime", param.getEndTime());
}

void readTimeZone(const TiXmlElement& element, const char* zone, TimeZoneParam& param)
{
    param.setTimeZone(intOf(element, zone, param.getTimeZone()));
    param.setDSTOpenFlag(flagOf(element, "DSTOpenFlag", param.getDSTOpenFlag()));
    param.setDSTOffset(intOf(element, "DSTOffset", param.getDSTOffset()));
    param.setBeginMonth(intOf(element, "BeginMonth", param.getBeginMonth()));
    param.setBeginWeekly(intOf(element, "BeginWeekly", param.getBeginWeekly()));
    param.setBeginWeekDays(intOf(element, "BeginWeekDays", param.getBeginWeekDays()));
    param.setBeginTime(uint32Of(element, "BeginTime", param.getBeginTime()));
    param.setEndMonth(intOf(element, "EndMonth", param.getEndMonth()));
    param.setEndWeekly(intOf(element, "EndWeekly", param.getEndWeekly()));
    param.setEndWeekDays(intOf(element, "EndWeekDays", param.getEndWeekDays()));
    param.setEndTime(uint32Of(element, "EndTime", param.getEndTime()));
}

bool writeTimeZone(SafePointer<DomainXmlNode>& node, const char* zone, const TimeZoneParam& param)
{
    if (!node) return false;

    node->setProperty(zone, param.getTimeZone());
    node->setProperty("DSTOpenFlag", param.getDSTOpenFlag());
    node->setProperty("DSTOffset", param.getDSTOffset());
    node->setProperty("BeginMonth", param.getBeginMonth());
    node->setProperty("BeginWeekly", param.getBeginWeekly());
    node->setProperty("BeginWeekDays", param.getBeginWeekDays());
    node->setProperty("BeginTime", static_cast<unsigned long long>(param.getBeginTime()));
    node->setProperty("EndMonth", param.getEndMonth());
    node->setProperty("EndWeekly", param.getEndWeekly());
    node->setProperty("EndWeekDays", param.getEndWeekDays());
    node->setProperty("EndTime", static_cast<unsigned long long>(param.getEndTime()));
    return true;
}

bool readTimeZone(const SafePointer<DomainXmlNode>& node, const char* zone, TimeZoneParam& param)
{
    if (!node) return false;

    int number = 0;
    bool flag = false;
    unsigned long long time = 0;
    if (!node->getProperty(zone, number)) return false;
    param.setTimeZone(number);
    if (!node->getProperty("DSTOpenFlag", flag)) return false;
    param.setDSTOpenFlag(flag);
    if (!node->getProperty("DSTOffset", number)) return false;
    param.setDSTOffset(number);
    if (!node->getProperty("BeginMonth", number)) return false;
    param.setBeginMonth(number);
    if (!node->getProperty("BeginWeekly", number)) return false;
    param.setBeginWeekly(number);
    if (!node->getProperty("BeginWeekDays", number)) return false;
    param.setBeginWeekDays(number);
    if (!node->getProperty("BeginTime", time)) return false;
    param.setBeginTime(static_cast<std::uint32_t>(time));
    if (!node->getProperty("EndMonth", number)) return false;
    param.setEndMonth(number);
    if (!node->getProperty("EndWeekly", number)) return false;
    param.setEndWeekly(number);
    if (!node->getProperty("EndWeekDays", number)) return false;
    param.setEndWeekDays(number);
    if (!node->getProperty("EndTime", time)) return false;
    param.setEndTime(static_cast<std::uint32_t>(time));
    return true;
}

} // namespace frame
