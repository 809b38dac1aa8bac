#pragma once

#include "domain/DomainXmlNode.h"
#include "domain/PtzRecords.h"

#include <string>

/// What a head does in one stretch of time: the "PTZTimerTimeSegment" document.
///
/// A missing attribute resets its field. Times are written whole and read as signed 32-bit numbers, as the peers do:
/// 3000000000 does not come back, and a negative one becomes huge.
class PTZTimerTimeSegmentXml
{
public:
    PTZTimerTimeSegmentXml();
    virtual ~PTZTimerTimeSegmentXml();

    /// @name Node form
    /// See IDomainXml.
    /// @{

    /// Removes the children that @p node has.
    bool createDomainXmlNode(const PTZTimerTimeSegment& segment, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PTZTimerTimeSegment& segment) const;
    bool createXmlString(const PTZTimerTimeSegment& segment, std::string& text) const;
    bool parseXmlString(const std::string& text, PTZTimerTimeSegment& segment) const;
    /// @}
};
