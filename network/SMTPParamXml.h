#pragma once

#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <vector>

/// How a device sends mail: the "SMTPParam" document, and "SMTPParamList" for several.
///
/// A missing attribute prints a line and resets its field, and a missing list of recipients empties theirs. A recipient
/// without an address gives false: the record has the attributes then, and the recipients that it had before.
class SMTPParamXml
{
public:
    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const SMTPParam& param, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<SMTPParam>& params, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, SMTPParam& param) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<SMTPParam>& params) const;
    bool createXmlString(const SMTPParam& param, std::string& text) const;
    bool createXmlString(const std::vector<SMTPParam>& params, std::string& text) const;
    bool parseXmlString(const std::string& text, SMTPParam& param) const;
    bool parseXmlString(const std::string& text, std::vector<SMTPParam>& params) const;
    /// @}
};
