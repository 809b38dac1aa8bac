#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/PtzRecords.h"

#include <string>

/// How the heads of a device are attached, and which one is inside it: the "PTZParamEx" document.
///
/// Missing heads give none, a missing "InternalPTZId" 0 and a line.
class PTZParamExXml : public IDomainXml
{
public:
    PTZParamExXml();
    ~PTZParamExXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const PTZParamEx& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PTZParamEx& param) const;
    bool createXmlString(const PTZParamEx& param, std::string& text) const;
    bool parseXmlString(const std::string& text, PTZParamEx& param) const;
    /// @}
};
