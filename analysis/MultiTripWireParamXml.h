#pragma once

#include "analysis/IntelligeBaseParamXml.h"
#include "domain/AnalysisRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <vector>

/// Objects that cross two lines: the "MultiTripWireParam" document.
///
/// A missing property gives 0 or false, but a "TargetType" 1, a "MinTargetSize" 1000 and a "MaxTargetSize" 100000; a
/// missing base part or "RegionList" gives an empty one. A region without its "LineList" of two lines fails the rule.
/// What is read takes the place of all that the record held; a failure leaves it as it was.
class MultiTripWireParamXml : public IntelligeBaseParamXml
{
public:
    MultiTripWireParamXml();
    ~MultiTripWireParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const MultiTripWireParam& param, SafePointer<DomainXmlNode>& node);
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, MultiTripWireParam& param);
    bool createXmlString(const MultiTripWireParam& param, std::string& text);
    bool parseXmlString(const std::string& text, MultiTripWireParam& param);
    /// @}

    /// Adds the container "RegionList" with the regions to @p node. False if that is empty.
    bool createMultiTripWireRegionParamListToDomainXmlNode(const std::vector<MultiTripWireRegionParam>& regions,
                                                           SafePointer<DomainXmlNode>& node);

    /// Adds the container "LineList" with the two lines to @p node. False if that is empty.
    bool createLineCrossToDomainXmlNode(const LineCross& first, const LineCross& second,
                                        SafePointer<DomainXmlNode>& node);
    /// Appends all children of the child "LineList" of @p node to @p lines. False without it, or at one that is no
    /// "LineCross".
    bool parseLineCrossToDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<LineCross>& lines);

private:
    // A rule is written and read as a whole: what the base does with its own part is hidden.
    using IntelligeBaseParamXml::createDomainXmlNode;
    using IntelligeBaseParamXml::createXmlString;
    using IntelligeBaseParamXml::parseDomainXmlNode;
    using IntelligeBaseParamXml::parseXmlString;
};
