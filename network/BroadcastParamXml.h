#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <vector>

/// How a device announces itself to all of its subnet: the "BroadcastParam" document, which holds its values in an
/// element of the same name inside.
///
/// A missing attribute resets its field. Without the element inside, reading gives false.
class BroadcastParamXml : public IDomainXml
{
public:
    BroadcastParamXml();
    ~BroadcastParamXml() override;

    /// @name Node form
    /// See IDomainXml. Lists have node operations, but no text of their own; they are appended to.
    /// @{

    /// Removes the children that @p node has, and adds a "BroadcastParam".
    bool createDomainXmlNode(const BroadcastParam& param, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<BroadcastParam>& params, SafePointer<DomainXmlNode>& node) const;
    /// Reads the "BroadcastParam" inside @p node; false, with @p param as it was, if there is none.
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, BroadcastParam& param) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<BroadcastParam>& params) const;
    bool createXmlString(const BroadcastParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, BroadcastParam& param) const;
    /// @}
};
