#pragma once

#include "core/SafePointer.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <tinyxml.h>
#include <vector>

/// The steps that the codecs of the alarm policies share, beside those of all codecs: the lists of actions, the
/// schedule, and lists that have no container.
namespace [[gnu::visibility("hidden")]] frame
{

/// @name Lists of actions in elements
/// @{

/// Appends the element named @p container to @p parent, also for an empty list, and below it the items.
/// @{
void writeActions(TiXmlElement& parent, const char* container, const std::vector<AlarmOutAction>& actions);
void writeActions(TiXmlElement& parent, const char* container, const std::vector<AlarmRecordAction>& actions);
void writeActions(TiXmlElement& parent, const char* container, const std::vector<AlarmPTZAction>& actions);
void writeActions(TiXmlElement& parent, const char* container, const std::vector<AlarmOverlayAction>& actions);
/// @}

/// Adds the items in the child of @p parent named @p container to @p actions. False if an item cannot be read; those
/// before it stay.
/// @{
bool readActions(const TiXmlElement& parent, const char* container, std::vector<AlarmOutAction>& actions);
bool readActions(const TiXmlElement& parent, const char* container, std::vector<AlarmRecordAction>& actions);
bool readActions(const TiXmlElement& parent, const char* container, std::vector<AlarmPTZAction>& actions);
bool readActions(const TiXmlElement& parent, const char* container, std::vector<AlarmOverlayAction>& actions);
/// @}

/// @}
/// @name Lists of actions in nodes
/// @{

/// Adds the items to @p list, the container's node; false if that is empty.
/// @{
bool writeActions(SafePointer<DomainXmlNode>& list, const std::vector<AlarmOutAction>& actions);
bool writeActions(SafePointer<DomainXmlNode>& list, const std::vector<AlarmRecordAction>& actions);
bool writeActions(SafePointer<DomainXmlNode>& list, const std::vector<AlarmPTZAction>& actions);
bool writeActions(SafePointer<DomainXmlNode>& list, const std::vector<AlarmOverlayAction>& actions);
/// @}

/// Adds the items in @p list, the container's node, to @p actions. False if the node is empty, or if an item cannot be
/// read; those before it stay.
/// @{
bool readActions(const SafePointer<DomainXmlNode>& list, std::vector<AlarmOutAction>& actions);
bool readActions(const SafePointer<DomainXmlNode>& list, std::vector<AlarmRecordAction>& actions);
bool readActions(const SafePointer<DomainXmlNode>& list, std::vector<AlarmPTZAction>& actions);
bool readActions(const SafePointer<DomainXmlNode>& list, std::vector<AlarmOverlayAction>& actions);
/// @}

/// The items in the child of @p node named @p container. Where a line is given, a missing child prints it.
/// @{
std::vector<AlarmOutAction> alarmOutActions(const SafePointer<DomainXmlNode>& node, const char* container,
                                            const char* line = nullptr);
std::vector<AlarmRecordAction> alarmRecordActions(const SafePointer<DomainXmlNode>& node, const char* container,
                                                  const char* line = nullptr);
std::vector<AlarmPTZAction> alarmPTZActions(const SafePointer<DomainXmlNode>& node, const char* container,
                                            const char* line = nullptr);
std::vector<AlarmOverlayAction> alarmOverlayActions(const SafePointer<DomainXmlNode>& node, const char* container,
                                                    const char* line = nullptr);
/// @}

/// @}

/// Reads the child of @p parent named "ScheduleTimeParam" into @p schedule, which is left where there is none. False,
/// and left too, if it cannot be read.
bool readSchedule(const TiXmlElement& parent, ScheduleTimeParam& schedule);

/// @name Lists without a container
/// @{

/// The elements that make up a list whose items stand side by side, @p first among them, in the order in which they are
/// read. Each item says in its attribute named @p length how many there are; without it there is one.
///
/// The peers look for the next item behind the first one, whichever they have just read: the second stands in place of
/// all that follow it, as often as the length says. What ends the list, at the latest, is that there is no second
/// element, or that as many have been taken as there are elements, or 64 of them where there are less. A second element
/// that is much larger than the others may end it sooner, but not below 64.
std::vector<const TiXmlElement*> repeatedElements(const TiXmlElement& first, const char* length);

/// @}

} // namespace frame
