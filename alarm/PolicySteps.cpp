#include "alarm/PolicySteps.h"

#include "alarm/AlarmOutActionXml.h"
#include "alarm/AlarmOverlayActionXml.h"
#include "alarm/AlarmPTZActionXml.h"
#include "alarm/AlarmRecordActionXml.h"
#include "alarm/ScheduleTimeParamXml.h"
#include "core/Frame.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <utility>

namespace frame
{

namespace
{

/// Where a line is given, a missing list prints it.
void findList(const SafePointer<DomainXmlNode>& node, const char* container, const char* line,
              SafePointer<DomainXmlNode>& list)
{
    if (!node->getConfigNode(container, list) && line != nullptr) std::puts(line);
}

/// Adds up what elements take to be read: themselves, and the bytes of their values.
class Weight : public TiXmlVisitor
{
public:
    explicit Weight(const TiXmlElement& element) { element.Accept(this); }

    using TiXmlVisitor::VisitEnter;
    bool VisitEnter(const TiXmlElement& /*element*/, const TiXmlAttribute* attribute) override
    {
        ++sum_;
        for (; attribute != nullptr; attribute = attribute->Next())
            sum_ += attribute->ValueStr().size();
        return true;
    }

    unsigned long long sum() const { return sum_; }

private:
    unsigned long long sum_ = 0;
};

/// How many items a list without a container may have, of which @p first is one: as many as there are elements, or 64
/// where there are less. If the second, which is read again and again, is so much larger than the others that all would
/// take more than 64 times what they do as they stand, then less, down to 64.
std::size_t mostItems(const TiXmlElement& first)
{
    constexpr unsigned long long allowed = 64;
    unsigned long long there = 0;
    for (const TiXmlElement* element = &first; element != nullptr; element = element->NextSiblingElement())
        ++there;
    if (there <= allowed) return allowed;

    unsigned long long all = 0;
    for (const TiXmlElement* element = &first; element != nullptr; element = element->NextSiblingElement())
        all += Weight(*element).sum();
    const unsigned long long second = Weight(*first.NextSiblingElement()).sum();
    return static_cast<std::size_t>(std::clamp(allowed * all / second, allowed, there));
}

} // namespace

void writeActions(TiXmlElement& parent, const char* container, const std::vector<AlarmOutAction>& actions)
{
    TiXmlElement& list = appendElement(parent, container);
    for (const AlarmOutAction& action : actions)
        AlarmOutActionXml::writeElement(list, action);
}

void writeActions(TiXmlElement& parent, const char* container, const std::vector<AlarmRecordAction>& actions)
{
    TiXmlElement& list = appendElement(parent, container);
    for (const AlarmRecordAction& action : actions)
        AlarmRecordActionXml::writeElement(list, action);
}

void writeActions(TiXmlElement& parent, const char* container, const std::vector<AlarmPTZAction>& actions)
{
    TiXmlElement& list = appendElement(parent, container);
    for (const AlarmPTZAction& action : actions)
        AlarmPTZActionXml::writeElement(list, action);
}

void writeActions(TiXmlElement& parent, const char* container, const std::vector<AlarmOverlayAction>& actions)
{
    TiXmlElement& list = appendElement(parent, container);
    for (const AlarmOverlayAction& action : actions)
        AlarmOverlayActionXml::writeElement(list, action);
}

bool readActions(const TiXmlElement& parent, const char* container, std::vector<AlarmOutAction>& actions)
{
    const TiXmlElement* item = firstItem(parent, container, "AlarmOutAction");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmOutAction action;
        if (!AlarmOutActionXml::readElement(*item, action)) return false;
        actions.push_back(std::move(action));
    }
    return true;
}

bool readActions(const TiXmlElement& parent, const char* container, std::vector<AlarmRecordAction>& actions)
{
    const TiXmlElement* item = firstItem(parent, container, "AlarmRecordAction");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmRecordAction action;
        if (!AlarmRecordActionXml::readElement(*item, action)) return false;
        actions.push_back(std::move(action));
    }
    return true;
}

bool readActions(const TiXmlElement& parent, const char* container, std::vector<AlarmPTZAction>& actions)
{
    const TiXmlElement* item = firstItem(parent, container, "AlarmPTZAction");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmPTZAction action;
        if (!AlarmPTZActionXml::readElement(*item, action)) return false;
        actions.push_back(std::move(action));
    }
    return true;
}

bool readActions(const TiXmlElement& parent, const char* container, std::vector<AlarmOverlayAction>& actions)
{
    const TiXmlElement* item = firstItem(parent, container, "AlarmOverlayAction");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmOverlayAction action;
        if (!AlarmOverlayActionXml::readElement(*item, action)) return false;
        actions.push_back(std::move(action));
    }
    return true;
}

bool writeActions(SafePointer<DomainXmlNode>& list, const std::vector<AlarmOutAction>& actions)
{
    if (!list) return false;
    for (const AlarmOutAction& action : actions)
    {
        SafePointer<DomainXmlNode> item = appendNode(list, "AlarmOutAction");
        if (!AlarmOutActionXml().createDomainXmlNode(action, item)) return false;
    }
    return true;
}

bool writeActions(SafePointer<DomainXmlNode>& list, const std::vector<AlarmRecordAction>& actions)
{
    if (!list) return false;
    for (const AlarmRecordAction& action : actions)
    {
        SafePointer<DomainXmlNode> item = appendNode(list, "AlarmRecordAction");
        if (!AlarmRecordActionXml().createDomainXmlNode(action, item)) return false;
    }
    return true;
}

bool writeActions(SafePointer<DomainXmlNode>& list, const std::vector<AlarmPTZAction>& actions)
{
    if (!list) return false;
    for (const AlarmPTZAction& action : actions)
    {
        SafePointer<DomainXmlNode> item = appendNode(list, "AlarmPTZAction");
        if (!AlarmPTZActionXml().createDomainXmlNode(action, item)) return false;
    }
    return true;
}

bool writeActions(SafePointer<DomainXmlNode>& list, const std::vector<AlarmOverlayAction>& actions)
{
    if (!list) return false;
    for (const AlarmOverlayAction& action : actions)
    {
        SafePointer<DomainXmlNode> item = appendNode(list, "AlarmOverlayAction");
        if (!AlarmOverlayActionXml().createDomainXmlNode(action, item)) return false;
    }
    return true;
}

bool readActions(const SafePointer<DomainXmlNode>& list, std::vector<AlarmOutAction>& actions)
{
    if (!list) return false;
    TiXmlElement* item = firstChild(list);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmOutAction action;
        if (!AlarmOutActionXml().parseDomainXmlNode(nodeOf(*item), action)) return false;
        actions.push_back(std::move(action));
    }
    return true;
}

bool readActions(const SafePointer<DomainXmlNode>& list, std::vector<AlarmRecordAction>& actions)
{
    if (!list) return false;
    TiXmlElement* item = firstChild(list);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmRecordAction action;
        if (!AlarmRecordActionXml().parseDomainXmlNode(nodeOf(*item), action)) return false;
        actions.push_back(std::move(action));
    }
    return true;
}

bool readActions(const SafePointer<DomainXmlNode>& list, std::vector<AlarmPTZAction>& actions)
{
    if (!list) return false;
    TiXmlElement* item = firstChild(list);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmPTZAction action;
        if (!AlarmPTZActionXml().parseDomainXmlNode(nodeOf(*item), action)) return false;
        actions.push_back(std::move(action));
    }
    return true;
}

bool readActions(const SafePointer<DomainXmlNode>& list, std::vector<AlarmOverlayAction>& actions)
{
    if (!list) return false;
    TiXmlElement* item = firstChild(list);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmOverlayAction action;
        if (!AlarmOverlayActionXml().parseDomainXmlNode(nodeOf(*item), action)) return false;
        actions.push_back(std::move(action));
    }
    return true;
}

std::vector<AlarmOutAction> alarmOutActions(const SafePointer<DomainXmlNode>& node, const char* container,
                                            const char* line)
{
    std::vector<AlarmOutAction> actions;
    SafePointer<DomainXmlNode> list;
    findList(node, container, line, list);
    readActions(list, actions);
    return actions;
}

std::vector<AlarmRecordAction> alarmRecordActions(const SafePointer<DomainXmlNode>& node, const char* container,
                                                  const char* line)
{
    std::vector<AlarmRecordAction> actions;
    SafePointer<DomainXmlNode> list;
    findList(node, container, line, list);
    readActions(list, actions);
    return actions;
}

std::vector<AlarmPTZAction> alarmPTZActions(const SafePointer<DomainXmlNode>& node, const char* container,
                                            const char* line)
{
    std::vector<AlarmPTZAction> actions;
    SafePointer<DomainXmlNode> list;
    findList(node, container, line, list);
    readActions(list, actions);
    return actions;
}

std::vector<AlarmOverlayAction> alarmOverlayActions(const SafePointer<DomainXmlNode>& node, const char* container,
                                                    const char* line)
{
    std::vector<AlarmOverlayAction> actions;
    SafePointer<DomainXmlNode> list;
    findList(node, container, line, list);
    readActions(list, actions);
    return actions;
}

bool readSchedule(const TiXmlElement& parent, ScheduleTimeParam& schedule)
{
    const TiXmlElement* element = parent.FirstChildElement("ScheduleTimeParam");
    if (element == nullptr) return true;

    ScheduleTimeParam read;
    if (!ScheduleTimeParamXml::readElement(*element, read)) return false;
    schedule = std::move(read);
    return true;
}

std::vector<const TiXmlElement*> repeatedElements(const TiXmlElement& first, const char* length)
{
    // Peers may send any length: one of 0, which no number of items reaches, and one that asks for the second element a
    // million times.
    const std::size_t most = mostItems(first);
    std::vector<const TiXmlElement*> elements;
    const TiXmlElement* element = &first;
    long long wanted = 0;
    do
    {
        wanted = intOf(*element, length, 1);
        elements.push_back(element);
        element = first.NextSiblingElement();
    } while (static_cast<long long>(elements.size()) != wanted && element != nullptr && elements.size() < most);
    return elements;
}

} // namespace frame
