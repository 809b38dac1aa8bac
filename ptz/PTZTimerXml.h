#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/PtzRecords.h"

#include <string>
#include <vector>

/// What the heads of a device do by themselves, and when: the "PTZTimer" document, whose items are "PTZTimerParam".
///
/// A missing "CameraId" gives 1, any other missing attribute 0 or false. A missing "TimeStruct" resets the day and
/// prints a line; an item may do without segments.
class PTZTimerXml : public IDomainXml
{
public:
    PTZTimerXml();
    ~PTZTimerXml() override;

    /// @name Node form
    /// See IDomainXml. Lists only; they are appended to.
    /// @{

    /// Removes the children that @p node has.
    bool createDomainXmlNode(const std::vector<PTZTimer>& timers, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<PTZTimer>& timers) const;
    bool createXmlString(const std::vector<PTZTimer>& timers, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<PTZTimer>& timers) const;
    /// @}
};
