// <AlarmInfoExQueryParamList>
//     <AlarmInfoExQueryParam ... />
// </AlarmInfoExQueryParamList>

#include "alarm/AlarmInfoExQueryParamListXml.h"

#include "alarm/AlarmInfoExQueryParamXml.h"
#include "core/Frame.h"

#include <utility>

AlarmInfoExQueryParamListXml::AlarmInfoExQueryParamListXml() = default;

AlarmInfoExQueryParamListXml::~AlarmInfoExQueryParamListXml() = default;

void AlarmInfoExQueryParamListXml::createXmlNode()
{
    writeElement(document_, params_);
}

bool AlarmInfoExQueryParamListXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmInfoExQueryParamListXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmInfoExQueryParamList", document_, node_) && parseXmlNode();
}

bool AlarmInfoExQueryParamListXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, params_);
}

TiXmlElement& AlarmInfoExQueryParamListXml::writeElement(TiXmlNode& parent,
                                                         const std::vector<AlarmInfoExQueryParam>& params)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmInfoExQueryParamList");
    for (const AlarmInfoExQueryParam& param : params)
        AlarmInfoExQueryParamXml::writeElement(element, param);
    return element;
}

bool AlarmInfoExQueryParamListXml::readElement(const TiXmlElement& element, std::vector<AlarmInfoExQueryParam>& params)
{
    const TiXmlElement* item = frame::firstItem(element, "AlarmInfoExQueryParam");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmInfoExQueryParam param;
        if (!AlarmInfoExQueryParamXml::readElement(*item, param)) return false;
        params.push_back(std::move(param));
    }
    return true;
}
