#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>

/// How a device registers with a central server, first generation: the "CMSRegisterParam" document.
///
/// A missing child leaves its field. Without the list of cameras, which is read last, the reader gives false; one that
/// is there takes the place of the record's.
class CMSRegisterParamXml : public IDomainXml
{
public:
    CMSRegisterParamXml();
    ~CMSRegisterParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const CMSRegisterParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CMSRegisterParam& param) const;
    bool createXmlString(const CMSRegisterParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, CMSRegisterParam& param) const;
    /// @}
};
