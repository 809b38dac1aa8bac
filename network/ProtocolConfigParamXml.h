#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <vector>

/// The protocols that a device speaks with its server: the "ProtocolConfigParam" document, and
/// "ProtocolConfigParamList" for those of several.
///
/// Records and lists are read unlike each other. For a record, an item that lacks a property ends the reading with
/// false; in a list, the property is empty or false and the reading goes on. Both append, and pass over elements of
/// other names.
class ProtocolConfigParamXml : public IDomainXml
{
public:
    ProtocolConfigParamXml();
    ~ProtocolConfigParamXml() override;

    /// @name Node form of a record
    /// See IDomainXml.
    /// @{

    /// Makes the document's root, in place of what @p node held, and fills it.
    bool create(const ProtocolConfigParam& param, SafePointer<DomainXmlNode>& node) const;
    /// Adds an item to the document's root; false if @p node is empty.
    bool createProtocolConfigParamItem(const ProtocolConfigParamItem& item, SafePointer<DomainXmlNode>& node) const;
    /// Reads the document's root; false at the first failed item, with those before it in the record, and if @p node is
    /// empty.
    bool parse(const SafePointer<DomainXmlNode>& node, ProtocolConfigParam& param) const;
    /// Reads the item that @p node itself is; false at the first missing property, and if @p node is empty.
    bool parseProtocolConfigParamItem(const SafePointer<DomainXmlNode>& node, ProtocolConfigParamItem& item) const;

    bool createDomainXmlNode(const ProtocolConfigParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ProtocolConfigParam& param) const;
    bool createXmlString(const ProtocolConfigParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, ProtocolConfigParam& param) const;
    /// @}

    /// @name Node form of a list
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const std::vector<ProtocolConfigParam>& params, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<ProtocolConfigParam>& params) const;
    bool createXmlString(const std::vector<ProtocolConfigParam>& params, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<ProtocolConfigParam>& params) const;
    /// @}
};
