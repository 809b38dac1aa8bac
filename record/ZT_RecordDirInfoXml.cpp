// <ZT_RecordDirInfoList>
//     <ZT_RecordDirInfo ZT_DiskType="1" ZT_DiskName="hda1" ZT_GroupId="2" ... ZT_FileSystem="9" />
// </ZT_RecordDirInfoList>

#include "record/ZT_RecordDirInfoXml.h"

#include "core/Frame.h"
#include "record/RecordSteps.h"

#include <utility>

namespace
{

void writeInfo(TiXmlNode& list, const ZT_RecordDirInfo& info)
{
    TiXmlElement& element = frame::appendElement(list, "ZT_RecordDirInfo");
    frame::setInt(element, "ZT_DiskType", info.getDiskType());
    frame::setText(element, "ZT_DiskName", info.getDiskName());
    frame::setInt(element, "ZT_GroupId", info.getGroupId());
    frame::setInt(element, "ZT_UsableSpace", info.getUsableSpace());
    frame::setInt(element, "ZT_FreeSpace", info.getFreeSpace());
    frame::setInt(element, "ZT_Attribute", info.getAttribute());
    frame::setFlag(element, "ZT_EnableFlag", info.getEnableFlag());
    frame::setInt(element, "ZT_AlarmThreshold", info.getAlarmThreshold());
    frame::setInt(element, "ZT_Status", info.getStatus());
    frame::setInt(element, "ZT_FileSystem", info.getFileSystemFormat());
}

void readInfo(const TiXmlElement& element, ZT_RecordDirInfo& info)
{
    info.setDiskType(frame::intOf(element, "ZT_DiskType", info.getDiskType()));
    info.setDiskName(frame::textOf(element, "ZT_DiskName", info.getDiskName()));
    info.setGroupId(frame::intOf(element, "ZT_GroupId", 0));
    info.setUsableSpace(frame::intOf(element, "ZT_UsableSpace", 0));
    info.setFreeSpace(frame::intOf(element, "ZT_FreeSpace", 0));
    info.setAttribute(frame::intOf(element, "ZT_Attribute", 0));
    info.setEnableFlag(frame::flagOf(element, "ZT_EnableFlag", info.getEnableFlag()));
    info.setAlarmThreshold(frame::intOf(element, "ZT_AlarmThreshold", 0));
    info.setStatus(frame::intOf(element, "ZT_Status", 0));
    info.setFileSystemFormat(frame::intOf(element, "ZT_FileSystem", 0));
}

void writeInfo(SafePointer<DomainXmlNode>& list, const ZT_RecordDirInfo& info)
{
    SafePointer<DomainXmlNode> node = frame::appendNode(list, "ZT_RecordDirInfo");
    node->setProperty("ZT_DiskType", info.getDiskType());
    node->setProperty("ZT_DiskName", info.getDiskName());
    node->setProperty("ZT_GroupId", info.getGroupId());
    node->setProperty("ZT_UsableSpace", info.getUsableSpace());
    node->setProperty("ZT_FreeSpace", info.getFreeSpace());
    node->setProperty("ZT_Attribute", info.getAttribute());
    node->setProperty("ZT_EnableFlag", info.getEnableFlag());
    // Here, and not in the document form, the peers put the state before the threshold.
    node->setProperty("ZT_Status", info.getStatus());
    node->setProperty("ZT_AlarmThreshold", info.getAlarmThreshold());
    node->setProperty("ZT_FileSystem", info.getFileSystemFormat());
}

/// False at the first value that is no number, or no flag. Only this form is that strict.
bool readInfo(const SafePointer<DomainXmlNode>& node, ZT_RecordDirInfo& info)
{
    int number = 0;
    bool flag = false;
    if (!frame::takeInt(node, "ZT_DiskType", 2, number)) return false;
    info.setDiskType(number);
    info.setDiskName(frame::textProperty(node, "ZT_DiskName", "SDCard"));
    if (!frame::takeInt(node, "ZT_GroupId", 1, number)) return false;
    info.setGroupId(number);
    if (!frame::takeInt(node, "ZT_UsableSpace", 0, number)) return false;
    info.setUsableSpace(number);
    if (!frame::takeInt(node, "ZT_FreeSpace", 0, number)) return false;
    info.setFreeSpace(number);
    if (!frame::takeInt(node, "ZT_Attribute", 1, number)) return false;
    info.setAttribute(number);
    if (!frame::takeFlag(node, "ZT_EnableFlag", false, flag)) return false;
    info.setEnableFlag(flag);
    if (!frame::takeInt(node, "ZT_AlarmThreshold", 0, number)) return false;
    info.setAlarmThreshold(number);
    if (!frame::takeInt(node, "ZT_Status", 3, number)) return false;
    info.setStatus(number);
    if (!frame::takeInt(node, "ZT_FileSystem", 3, number)) return false;
    info.setFileSystemFormat(number);
    return true;
}

} // namespace

ZT_RecordDirInfoXml::ZT_RecordDirInfoXml() = default;

ZT_RecordDirInfoXml::~ZT_RecordDirInfoXml() = default;

void ZT_RecordDirInfoXml::createXmlNode()
{
    writeElement(document_, infos_);
}

bool ZT_RecordDirInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ZT_RecordDirInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "ZT_RecordDirInfoList", document_, node_) && parseXmlNode();
}

bool ZT_RecordDirInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, infos_);
}

TiXmlElement& ZT_RecordDirInfoXml::writeElement(TiXmlNode& parent, const std::vector<ZT_RecordDirInfo>& infos)
{
    TiXmlElement& element = frame::appendElement(parent, "ZT_RecordDirInfoList");
    for (const ZT_RecordDirInfo& info : infos)
        writeInfo(element, info);
    return element;
}

bool ZT_RecordDirInfoXml::readElement(const TiXmlElement& element, std::vector<ZT_RecordDirInfo>& infos)
{
    const TiXmlElement* item = frame::firstItem(element, "ZT_RecordDirInfo");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ZT_RecordDirInfo info;
        readInfo(*item, info);
        infos.push_back(std::move(info));
    }
    return true;
}

bool ZT_RecordDirInfoXml::createDomainXmlNode(const std::vector<ZT_RecordDirInfo>& infos,
                                              SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const ZT_RecordDirInfo& info : infos)
        writeInfo(node, info);
    return true;
}

bool ZT_RecordDirInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                             std::vector<ZT_RecordDirInfo>& infos) const
{
    TiXmlElement* list = node ? node->getXmlNode() : nullptr;
    if (list == nullptr) return false;

    TiXmlElement* item = list->FirstChildElement("ZT_RecordDirInfo");
    for (; item != nullptr; item = item->NextSiblingElement("ZT_RecordDirInfo"))
    {
        ZT_RecordDirInfo info;
        if (!readInfo(frame::nodeOf(*item), info)) return false;
        infos.push_back(std::move(info));
    }
    return true;
}

bool ZT_RecordDirInfoXml::createXmlString(const std::vector<ZT_RecordDirInfo>& infos, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ZT_RecordDirInfoList");
    return createDomainXmlNode(infos, node) && DomainXmlNode::toString(node, text);
}

bool ZT_RecordDirInfoXml::parseXmlString(const std::string& text, std::vector<ZT_RecordDirInfo>& infos) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ZT_RecordDirInfoList", node) && parseDomainXmlNode(node, infos);
}
