#pragma once

#include "core/IDomainXml.h"
#include "domain/CameraConfigureRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>

/// A camera's whole configuration: the "cameraConfigureEx" document.
///
/// A missing property resets its field, and a missing child or list gives that of a new record; lists replace those
/// that the record has. This codec prints nothing, but those of its children print their own lines.
class CameraConfigureExXml : public IDomainXml
{
public:
    CameraConfigureExXml();
    ~CameraConfigureExXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const CameraConfigureEx& configure, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CameraConfigureEx& configure) const;
    bool createXmlString(const CameraConfigureEx& configure, std::string& text) const;
    bool parseXmlString(const std::string& text, CameraConfigureEx& configure) const;
    /// @}
};
