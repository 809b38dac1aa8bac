#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <vector>

/// A region of a picture that the encoder favours: the "ROIInfoParam" document, and "ROIInfoParamList" for several.
///
/// A missing attribute resets its field and prints a line; a missing "AreaParam" resets the area.
class ROIInfoParamXml : public IDomainXml
{
public:
    ROIInfoParamXml();
    ~ROIInfoParamXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const ROIInfoParam& region, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ROIInfoParam& region) const;
    bool createXmlString(const ROIInfoParam& region, std::string& text) const;
    bool createXmlString(const std::vector<ROIInfoParam>& regions, std::string& text) const;
    bool parseXmlString(const std::string& text, ROIInfoParam& region) const;
    bool parseXmlString(const std::string& text, std::vector<ROIInfoParam>& regions) const;
    /// @}
};
