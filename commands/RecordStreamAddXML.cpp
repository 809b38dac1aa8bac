// <RecordStreamAdd ManagerId="1" DataChannelId="2">
//     <RecordInfoList ExtendField="0">
//         <RecordInfo ... />
//     </RecordInfoList>
// </RecordStreamAdd>

#include "commands/RecordStreamAddXML.h"

#include "core/Frame.h"
#include "record/RecordInfoXml.h"

#include <cstdio>
#include <utility>

RecordStreamAddXML::RecordStreamAddXML() = default;

RecordStreamAddXML::~RecordStreamAddXML() = default;

void RecordStreamAddXML::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "RecordStreamAdd");
    frame::setInt(element, "ManagerId", managerId_);
    frame::setInt(element, "DataChannelId", dataChannelId_);

    // The list's own number has no meaning here: it goes out as 0, and is passed over on the way in.
    RecordInfoXml::writeElement(element, recordInfoList_, 0);
}

bool RecordStreamAddXML::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordStreamAddXML::parseXmlString()
{
    if (!frame::parse(document_, text_))
    {
        std::puts("m_objRecordStreamAddDoc.Error() ");
        return false;
    }
    TiXmlElement* root = document_.FirstChildElement("RecordStreamAdd");
    if (root == nullptr) return false;
    node_ = root;
    return parseXmlNode();
}

bool RecordStreamAddXML::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    managerId_ = frame::intOf(*element, "ManagerId", managerId_);
    dataChannelId_ = frame::intOf(*element, "DataChannelId", dataChannelId_);

    const TiXmlElement* list = element->FirstChildElement("RecordInfoList");
    if (list != nullptr)
    {
        std::vector<RecordInfo> infos;
        int extendField = 0;
        if (!RecordInfoXml::readElement(*list, infos, extendField)) return false;
        recordInfoList_ = std::move(infos);
    }
    return true;
}
