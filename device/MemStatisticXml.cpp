// <MemStatistic MemTotalSize="2048" MemFreeSize="512" />

#include "device/MemStatisticXml.h"

#include "core/Frame.h"

MemStatisticXml::MemStatisticXml() = default;

MemStatisticXml::~MemStatisticXml() = default;

void MemStatisticXml::createXmlNode()
{
    writeElement(document_, memory_);
}

bool MemStatisticXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool MemStatisticXml::parseXmlString()
{
    return frame::parseRoot(text_, "MemStatistic", document_, node_) && parseXmlNode();
}

bool MemStatisticXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, memory_);
}

TiXmlElement& MemStatisticXml::writeElement(TiXmlNode& parent, const MemStatistic& memory)
{
    TiXmlElement& element = frame::appendElement(parent, "MemStatistic");
    frame::setInt(element, "MemTotalSize", memory.getMemTotalSize());
    frame::setInt(element, "MemFreeSize", memory.getMemFreeSize());
    return element;
}

bool MemStatisticXml::readElement(const TiXmlElement& element, MemStatistic& memory)
{
    memory.setMemTotalSize(frame::intOf(element, "MemTotalSize", 0));
    memory.setMemFreeSize(frame::intOf(element, "MemFreeSize", 0));
    return true;
}
