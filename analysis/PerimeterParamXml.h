#pragma once

#include "analysis/IntelligeBaseParamXml.h"
#include "domain/AnalysisRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <vector>

/// Objects that enter a region: the "PerimeterParam" document.
///
/// A missing property gives 0 or false, but a "TargetType" 1, a "MinTargetSize" 1000 and a "MaxTargetSize" 100000; a
/// missing base part or "RegionList" gives an empty one. A region without its "PolygonArealist" or "DetectionAreaV2"
/// fails the rule. What is read takes the place of all that the record held; a failure leaves it as it was.
///
/// Readers print a line of asterisks for each region, and `parseDomainXmlNode` two for a missing base part.
class PerimeterParamXml : public IntelligeBaseParamXml
{
public:
    PerimeterParamXml();
    ~PerimeterParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const PerimeterParam& param, SafePointer<DomainXmlNode>& node);
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PerimeterParam& param);
    bool createXmlString(const PerimeterParam& param, std::string& text);
    bool parseXmlString(const std::string& text, PerimeterParam& param);
    /// @}

    /// Adds the container "RegionList" with the regions to @p node. False if that is empty.
    bool createPerimeterRegionParamListToDomainXmlNode(const std::vector<PerimeterRegionParam>& regions,
                                                       SafePointer<DomainXmlNode>& node);

    /// Adds the element "PolygonArealist" to @p node. False if that is empty.
    bool createPolygonAreaToDomainXmlNode(const PolygonArea& area, SafePointer<DomainXmlNode>& node);
    /// Reads the child "PolygonArealist" of @p node behind what @p area holds. False without it.
    bool parsePolygonAreaToDomainXmlNode(const SafePointer<DomainXmlNode>& node, PolygonArea& area);

    /// Adds the element "DetectionAreaV2" to @p node. False if that is empty, or if the cells cannot be written.
    bool createDetectionAreaV2ToDomainXmlNode(const DetectionAreaV2& area, SafePointer<DomainXmlNode>& node);
    /// Reads the child "DetectionAreaV2" of @p node. False without it.
    bool parseDetectionAreaV2ToDomainXmlNode(const SafePointer<DomainXmlNode>& node, DetectionAreaV2& area);

private:
    // A rule is written and read as a whole: what the base does with its own part is hidden.
    using IntelligeBaseParamXml::createDomainXmlNode;
    using IntelligeBaseParamXml::createXmlString;
    using IntelligeBaseParamXml::parseDomainXmlNode;
    using IntelligeBaseParamXml::parseXmlString;

    bool parseRule(const SafePointer<DomainXmlNode>& node, PerimeterParam& rule);
};
