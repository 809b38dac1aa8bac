// <FileSystemAbilityList>
//     <FileSystemAbility DiskType="1">
//         <FileSystem FileSystemType="1" FileSystemName="ext3" />
//         <DiskAttribute DiskAttributeType="1" DiskAttributeName="Backup" />
//     </FileSystemAbility>
// </FileSystemAbilityList>

#include "device/FileSystemAbilityXml.h"

#include "core/Frame.h"

#include <utility>

FileSystemAbilityXml::FileSystemAbilityXml() = default;

FileSystemAbilityXml::~FileSystemAbilityXml() = default;

void FileSystemAbilityXml::createXmlNode()
{
    writeElement(document_, abilities_);
}

bool FileSystemAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool FileSystemAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "FileSystemAbilityList", document_, node_) && parseXmlNode();
}

bool FileSystemAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, abilities_);
}

TiXmlElement& FileSystemAbilityXml::writeElement(TiXmlNode& parent, const std::vector<FileSystemAbility>& abilities)
{
    TiXmlElement& element = frame::appendElement(parent, "FileSystemAbilityList");
    for (const FileSystemAbility& ability : abilities)
    {
        TiXmlElement& item = frame::appendElement(element, "FileSystemAbility");
        frame::setInt(item, "DiskType", ability.getDiskType());
        for (const FileSystem& system : ability.getFileSystemList())
        {
            TiXmlElement& child = frame::appendElement(item, "FileSystem");
            frame::setInt(child, "FileSystemType", system.getFileSystemType());
            frame::setText(child, "FileSystemName", system.getFileSystemName());
        }
        for (const DiskAttributeEx& attribute : ability.getDiskAttributeList())
        {
            TiXmlElement& child = frame::appendElement(item, "DiskAttribute");
            frame::setInt(child, "DiskAttributeType", attribute.getDiskAttribute());
            frame::setText(child, "DiskAttributeName", attribute.getAttributeName());
        }
    }
    return element;
}

bool FileSystemAbilityXml::readElement(const TiXmlElement& element, std::vector<FileSystemAbility>& abilities)
{
    const TiXmlElement* item = element.FirstChildElement("FileSystemAbility");
    for (; item != nullptr; item = item->NextSiblingElement("FileSystemAbility"))
    {
        FileSystemAbility ability;
        ability.setDiskType(frame::intOf(*item, "DiskType", 0));

        const TiXmlElement* child = item->FirstChildElement("FileSystem");
        for (; child != nullptr; child = child->NextSiblingElement("FileSystem"))
        {
            FileSystem system;
            system.setFileSystemType(frame::queriedIntOf(*child, "FileSystemType", 0));
            system.setFileSystemName(frame::textOf(*child, "FileSystemName", ""));
            ability.getFileSystemList().push_back(std::move(system));
        }

        child = item->FirstChildElement("DiskAttribute");
        for (; child != nullptr; child = child->NextSiblingElement("DiskAttribute"))
        {
            DiskAttributeEx attribute;
            attribute.setDiskAttribute(frame::queriedIntOf(*child, "DiskAttributeType", 0));
            attribute.setAttributeName(frame::textOf(*child, "DiskAttributeName", ""));
            ability.getDiskAttributeList().push_back(std::move(attribute));
        }

        abilities.push_back(std::move(ability));
    }
    return true;
}
