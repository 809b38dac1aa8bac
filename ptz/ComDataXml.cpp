// <ComData ComDataLength="5" Data="hello" />

#include "ptz/ComDataXml.h"

#include "core/Frame.h"

#include <algorithm>
#include <cstring>

ComDataXml::ComDataXml() = default;

ComDataXml::~ComDataXml() = default;

void ComDataXml::createXmlNode()
{
    writeElement(document_, data_);
}

bool ComDataXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ComDataXml::parseXmlString()
{
    return frame::parseRoot(text_, "ComData", document_, node_) && parseXmlNode();
}

bool ComDataXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, data_);
}

TiXmlElement& ComDataXml::writeElement(TiXmlNode& parent, const ComData& data)
{
    TiXmlElement& element = frame::appendElement(parent, "ComData");
    frame::setInt(element, "ComDataLength", data.getDataLength());
    frame::setText(element, "Data", data.getData());
    return element;
}

bool ComDataXml::readElement(const TiXmlElement& element, ComData& data)
{
    const char* text = frame::attributeOf(element, "Data");
    const int length = frame::intOf(element, "ComDataLength", 0);
    const int available = text != nullptr ? static_cast<int>(std::strlen(text)) : 0;
    data.setData(text, std::min(length, available));
    return true;
}
