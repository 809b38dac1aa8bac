// <WifiParamList>
//     <WifiParam ... />
// </WifiParamList>

#include "network/WifiParamListXml.h"

#include "core/Frame.h"
#include "network/WifiParamXml.h"

#include <utility>

WifiParamListXml::WifiParamListXml() = default;

WifiParamListXml::~WifiParamListXml() = default;

void WifiParamListXml::createXmlNode()
{
    writeElement(document_, params_);
}

bool WifiParamListXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool WifiParamListXml::parseXmlString()
{
    return frame::parseRoot(text_, "WifiParamList", document_, node_) && parseXmlNode();
}

bool WifiParamListXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, params_);
}

TiXmlElement& WifiParamListXml::writeElement(TiXmlNode& parent, const std::vector<WifiParam>& params)
{
    TiXmlElement& element = frame::appendElement(parent, "WifiParamList");
    for (const WifiParam& param : params)
        WifiParamXml::writeElement(element, param);
    return element;
}

bool WifiParamListXml::readElement(const TiXmlElement& element, std::vector<WifiParam>& params)
{
    const TiXmlElement* item = frame::firstItem(element, "WifiParam");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        WifiParam param;
        if (!WifiParamXml::readElement(*item, param)) return false;
        params.push_back(std::move(param));
    }
    return true;
}
