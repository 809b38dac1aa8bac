// <RecordDirInfoList>
//     <RecordDirInfo DiskType="1" DiskName="hda1" GroupId="2" ... FileSystem="9" />
// </RecordDirInfoList>

#include "record/RecordDirInfoXml.h"

#include "core/Frame.h"
#include "record/RecordSteps.h"

#include <utility>

namespace
{

void writeInfo(TiXmlNode& list, const RecordDirInfo& info)
{
    TiXmlElement& element = frame::appendElement(list, "RecordDirInfo");
    frame::setInt(element, "DiskType", info.getDiskType());
    frame::setText(element, "DiskName", info.getDiskName());
    frame::setInt(element, "GroupId", info.getGroupId());
    frame::setInt(element, "UsableSpace", info.getUsableSpace());
    frame::setInt(element, "FreeSpace", info.getFreeSpace());
    frame::setInt(element, "Attribute", info.getAttribute());
    frame::setFlag(element, "EnableFlag", info.getEnableFlag());
    frame::setInt(element, "AlarmThreshold", info.getAlarmThreshold());
    frame::setInt(element, "Status", info.getStatus());
    frame::setInt(element, "FileSystem", info.getFileSystemFormat());
}

void readInfo(const TiXmlElement& element, RecordDirInfo& info)
{
    info.setDiskType(frame::intOf(element, "DiskType", info.getDiskType()));
    info.setDiskName(frame::textOf(element, "DiskName", info.getDiskName()).c_str());
    info.setGroupId(frame::intOf(element, "GroupId", 0));
    info.setUsableSpace(frame::intOf(element, "UsableSpace", 0));
    info.setFreeSpace(frame::intOf(element, "FreeSpace", 0));
    info.setAttribute(frame::intOf(element, "Attribute", 0));
    info.setEnableFlag(frame::flagOf(element, "EnableFlag", info.getEnableFlag()));
    info.setAlarmThreshold(frame::intOf(element, "AlarmThreshold", 0));
    info.setStatus(frame::intOf(element, "Status", 0));
    info.setFileSystemFormat(frame::intOf(element, "FileSystem", 0));
}

void writeInfo(SafePointer<DomainXmlNode>& list, const RecordDirInfo& info)
{
    SafePointer<DomainXmlNode> node = frame::appendNode(list, "RecordDirInfo");
    node->setProperty("DiskType", info.getDiskType());
    node->setProperty("DiskName", info.getDiskName());
    node->setProperty("GroupId", info.getGroupId());
    node->setProperty("UsableSpace", info.getUsableSpace());
    node->setProperty("FreeSpace", info.getFreeSpace());
    node->setProperty("Attribute", info.getAttribute());
    node->setProperty("EnableFlag", info.getEnableFlag());
    // Here, and not in the document form, the peers put the state before the threshold.
    node->setProperty("Status", info.getStatus());
    node->setProperty("AlarmThreshold", info.getAlarmThreshold());
    node->setProperty("FileSystem", info.getFileSystemFormat());
}

/// False at the first value that is no number, or no flag. Only this form is that strict.
bool readInfo(const SafePointer<DomainXmlNode>& node, RecordDirInfo& info)
{
    int number = 0;
    bool flag = false;
    if (!frame::takeInt(node, "DiskType", 2, number)) return false;
    info.setDiskType(number);
    info.setDiskName(frame::textProperty(node, "DiskName", "SDCard").c_str());
    if (!frame::takeInt(node, "GroupId", 1, number)) return false;
    info.setGroupId(number);
    if (!frame::takeInt(node, "UsableSpace", 0, number)) return false;
    info.setUsableSpace(number);
    if (!frame::takeInt(node, "FreeSpace", 0, number)) return false;
    info.setFreeSpace(number);
    if (!frame::takeInt(node, "Attribute", 1, number)) return false;
    info.setAttribute(number);
    if (!frame::takeFlag(node, "EnableFlag", false, flag)) return false;
    info.setEnableFlag(flag);
    if (!frame::takeInt(node, "AlarmThreshold", 0, number)) return false;
    info.setAlarmThreshold(number);
    if (!frame::takeInt(node, "Status", 3, number)) return false;
    info.setStatus(number);
    if (!frame::takeInt(node, "FileSystem", 3, number)) return false;
    info.setFileSystemFormat(number);
    return true;
}

} // namespace

RecordDirInfoXml::RecordDirInfoXml() = default;

RecordDirInfoXml::~RecordDirInfoXml() = default;

void RecordDirInfoXml::createXmlNode()
{
    writeElement(document_, infos_);
}

bool RecordDirInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordDirInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordDirInfoList", document_, node_) && parseXmlNode();
}

bool RecordDirInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, infos_);
}

TiXmlElement& RecordDirInfoXml::writeElement(TiXmlNode& parent, const std::vector<RecordDirInfo>& infos)
{
    TiXmlElement& element = frame::appendElement(parent, "RecordDirInfoList");
    for (const RecordDirInfo& info : infos)
        writeInfo(element, info);
    return element;
}

bool RecordDirInfoXml::readElement(const TiXmlElement& element, std::vector<RecordDirInfo>& infos)
{
    const TiXmlElement* item = frame::firstItem(element, "RecordDirInfo");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        RecordDirInfo info;
        readInfo(*item, info);
        infos.push_back(std::move(info));
    }
    return true;
}

bool RecordDirInfoXml::createDomainXmlNode(const std::vector<RecordDirInfo>& infos,
                                           SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const RecordDirInfo& info : infos)
        writeInfo(node, info);
    return true;
}

bool RecordDirInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                          std::vector<RecordDirInfo>& infos) const
{
    TiXmlElement* list = node ? node->getXmlNode() : nullptr;
    if (list == nullptr) return false;

    TiXmlElement* item = list->FirstChildElement("RecordDirInfo");
    for (; item != nullptr; item = item->NextSiblingElement("RecordDirInfo"))
    {
        RecordDirInfo info;
        if (!readInfo(frame::nodeOf(*item), info)) return false;
        infos.push_back(std::move(info));
    }
    return true;
}

bool RecordDirInfoXml::createXmlString(const std::vector<RecordDirInfo>& infos, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("RecordDirInfoList");
    return createDomainXmlNode(infos, node) && DomainXmlNode::toString(node, text);
}

bool RecordDirInfoXml::parseXmlString(const std::string& text, std::vector<RecordDirInfo>& infos) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "RecordDirInfoList", node) && parseDomainXmlNode(node, infos);
}
