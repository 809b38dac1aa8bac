#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/PtzRecords.h"

#include <string>

/// A scanner that writes what it reads over pictures: the "ScanRegistersParam" document.
///
/// What is missing leaves its field, and for a missing child prints a line. Cameras are added to those that the record
/// has, 0 for one without a number.
class ScanRegistersParamXml : public IDomainXml
{
public:
    ScanRegistersParamXml();
    ~ScanRegistersParamXml() override;

    /// @name Node form
    /// See IDomainXml. Nodes hold the port of the scanner as nodes do, whatever its kind; texts hold it as documents
    /// do, for the kind 1 only.
    /// @{
    bool createDomainXmlNode(const ScanRegistersParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ScanRegistersParam& param) const;
    bool createXmlString(const ScanRegistersParam& param, std::string& text) const;
    /// The reverse of `createXmlString`, under a name of its own.
    bool parseScanRegistersParamXml(const std::string& text, ScanRegistersParam& param) const;
    /// @}
};
