// <CpuStatistic CpuPercent="12.5" CpuStatus="1" />

#include "device/CpuStatisticXml.h"

#include "core/Frame.h"

CpuStatisticXml::CpuStatisticXml() = default;

CpuStatisticXml::~CpuStatisticXml() = default;

void CpuStatisticXml::createXmlNode()
{
    writeElement(document_, cpu_);
}

bool CpuStatisticXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool CpuStatisticXml::parseXmlString()
{
    return frame::parseRoot(text_, "CpuStatistic", document_, node_) && parseXmlNode();
}

bool CpuStatisticXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, cpu_);
}

TiXmlElement& CpuStatisticXml::writeElement(TiXmlNode& parent, const CpuStatistic& cpu)
{
    TiXmlElement& element = frame::appendElement(parent, "CpuStatistic");
    // The peers print it as a double, with all the digits that a float has there.
    frame::setDouble(element, "CpuPercent", static_cast<double>(cpu.getCpuPercent()));
    frame::setInt(element, "CpuStatus", cpu.getCpuStatus());
    return element;
}

bool CpuStatisticXml::readElement(const TiXmlElement& element, CpuStatistic& cpu)
{
    cpu.setCpuPercent(frame::floatOf(element, "CpuPercent", 0));
    cpu.setCpuStatus(static_cast<std::uint8_t>(frame::intOf(element, "CpuStatus", 0)));
    return true;
}
