// <WorkingModeAbility>
//     <WorkingModeList>
//         <WorkingMode ModeID="1" ModeName="Corridor" />
//     </WorkingModeList>
// </WorkingModeAbility>

#include "device/WorkingModeAbilityXml.h"

#include "core/Frame.h"

#include <utility>

WorkingModeAbilityXml::WorkingModeAbilityXml() = default;

WorkingModeAbilityXml::~WorkingModeAbilityXml() noexcept = default;

void WorkingModeAbilityXml::createXmlNode()
{
    tree_ = frame::makeNode("WorkingModeAbility");
    element_ = tree_->getXmlNode();
    writeContent(*element_, modes_);
}

// Parents take the element; nobody sends this document on its own.
bool WorkingModeAbilityXml::createXmlString()
{
    return true;
}

bool WorkingModeAbilityXml::parseXmlString()
{
    return true;
}

bool WorkingModeAbilityXml::parseXmlNode()
{
    return element_ != nullptr && readElement(*element_, modes_);
}

TiXmlElement& WorkingModeAbilityXml::writeElement(TiXmlNode& parent, const std::vector<WorkingMode>& modes)
{
    TiXmlElement& element = frame::appendElement(parent, "WorkingModeAbility");
    writeContent(element, modes);
    return element;
}

bool WorkingModeAbilityXml::readElement(const TiXmlElement& element, std::vector<WorkingMode>& modes)
{
    const TiXmlElement* list = element.FirstChildElement("WorkingModeList");
    if (list == nullptr) return false;

    std::vector<WorkingMode> read;
    const TiXmlElement* item = list->FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        WorkingMode mode;
        mode.setModeID(frame::intOf(*item, "ModeID", 0));
        mode.setModeName(frame::textOf(*item, "ModeName", ""));
        read.push_back(std::move(mode));
    }
    modes = std::move(read);
    return true;
}

void WorkingModeAbilityXml::writeContent(TiXmlElement& element, const std::vector<WorkingMode>& modes)
{
    TiXmlElement& list = frame::appendElement(element, "WorkingModeList");
    for (const WorkingMode& mode : modes)
    {
        TiXmlElement& item = frame::appendElement(list, "WorkingMode");
        frame::setInt(item, "ModeID", mode.getModeID());
        frame::setText(item, "ModeName", mode.getModeName());
    }
}
