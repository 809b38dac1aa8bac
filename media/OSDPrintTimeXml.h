#pragma once

#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>

/// How the time is drawn on a picture: the "OSDPrintTime" document.
///
/// A missing property resets its field and prints a line. Writing gives false for a node without an element.
class OSDPrintTimeXml
{
public:
    OSDPrintTimeXml();
    virtual ~OSDPrintTimeXml();

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const OSDPrintTime& time, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, OSDPrintTime& time) const;
    bool createXmlString(const OSDPrintTime& time, std::string& text) const;
    bool parseXmlString(const std::string& text, OSDPrintTime& time) const;
    /// @}
};
