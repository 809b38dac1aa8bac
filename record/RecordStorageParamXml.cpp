// <RecordStorageParam>
//     <WritePolicy ... />
//     <SavePolicy RecordSaveDays="30" />
//     <SpacePolicyList>
//         <SpacePolicy ... />
//     </SpacePolicyList>
// </RecordStorageParam>

#include "record/RecordStorageParamXml.h"

#include "core/Frame.h"
#include "record/SavePolicyXml.h"
#include "record/SpacePolicyXml.h"
#include "record/WritePolicyXml.h"

#include <utility>

RecordStorageParamXml::RecordStorageParamXml() = default;

RecordStorageParamXml::~RecordStorageParamXml() = default;

void RecordStorageParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool RecordStorageParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordStorageParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordStorageParam", document_, node_) && parseXmlNode();
}

bool RecordStorageParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& RecordStorageParamXml::writeElement(TiXmlNode& parent, const RecordStorageParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "RecordStorageParam");
    WritePolicyXml::writeElement(element, param.getWritePolicy());
    SavePolicyXml::writeElement(element, param.getSavePolicy());

    TiXmlElement& spaces = frame::appendElement(element, "SpacePolicyList");
    for (const SpacePolicy& space : param.getSpacePolicyList())
        SpacePolicyXml::writeElement(spaces, space);
    return element;
}

bool RecordStorageParamXml::readElement(const TiXmlElement& element, RecordStorageParam& param)
{
    const TiXmlElement* child = element.FirstChildElement("WritePolicy");
    if (child != nullptr)
    {
        WritePolicy writePolicy;
        if (!WritePolicyXml::readElement(*child, writePolicy)) return false;
        param.getWritePolicy() = std::move(writePolicy);
    }

    child = element.FirstChildElement("SavePolicy");
    if (child != nullptr)
    {
        SavePolicy savePolicy;
        if (!SavePolicyXml::readElement(*child, savePolicy)) return false;
        param.setSavePolicy(savePolicy);
    }

    const TiXmlElement* item = frame::firstItem(element, "SpacePolicyList", "SpacePolicy");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        SpacePolicy space;
        if (!SpacePolicyXml::readElement(*item, space)) return false;
        param.getSpacePolicyList().push_back(space);
    }
    return true;
}
