#pragma once

#include "analysis/IntelligeBaseParamXml.h"
#include "domain/AnalysisRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <vector>

/// Several objects that loiter: the "MultiLoiterParam" document.
///
/// A missing property gives 0 or false, but a "MinTargetSize" 1000 and a "MaxTargetSize" 100000; a missing base part or
/// "RegionList" gives an empty one. A region without its "PolygonArealist" fails the rule. What is read takes the place
/// of all that the record held; a failure leaves it as it was.
class MultiLoiterParamXml : public IntelligeBaseParamXml
{
public:
    MultiLoiterParamXml();
    ~MultiLoiterParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const MultiLoiterParam& param, SafePointer<DomainXmlNode>& node);
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, MultiLoiterParam& param);
    bool createXmlString(const MultiLoiterParam& param, std::string& text);
    bool parseXmlString(const std::string& text, MultiLoiterParam& param);
    /// @}

    /// Adds the container "RegionList" with the regions to @p node. False if that is empty.
    bool createMultiLoiterRegionParamListToDomainXmlNode(const std::vector<MultiLoiterRegionParam>& regions,
                                                         SafePointer<DomainXmlNode>& node);

    /// Adds the element "PolygonArealist" to @p node. False if that is empty.
    bool createPolygonAreaToDomainXmlNode(const PolygonArea& area, SafePointer<DomainXmlNode>& node);
    /// Reads the child "PolygonArealist" of @p node behind what @p area holds. False without it.
    bool parsePolygonAreaToDomainXmlNode(const SafePointer<DomainXmlNode>& node, PolygonArea& area);

private:
    // A rule is written and read as a whole: what the base does with its own part is hidden.
    using IntelligeBaseParamXml::createDomainXmlNode;
    using IntelligeBaseParamXml::createXmlString;
    using IntelligeBaseParamXml::parseDomainXmlNode;
    using IntelligeBaseParamXml::parseXmlString;
};
