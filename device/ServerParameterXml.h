#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>

/// How a device serves its clients: the "ServerParameter" document.
///
/// A missing attribute resets its field, and so does a missing "DevicePort".
class ServerParameterXml : public IDomainXml
{
public:
    ServerParameterXml();
    ~ServerParameterXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const ServerParameter& server, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ServerParameter& server) const;
    bool createXmlString(const ServerParameter& server, std::string& text) const;
    bool parseXmlString(const std::string& text, ServerParameter& server) const;
    /// @}
};
