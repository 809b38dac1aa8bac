#pragma once

#include "analysis/IntelligeBaseParamXml.h"
#include "domain/AnalysisRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <vector>

/// Objects that are taken away: the "ObjectMovedParam" document.
///
/// A missing property gives 0 or false; a missing base part or "RegionList" gives an empty one. A region without its
/// "PolygonArealist" fails the rule. What is read takes the place of all that the record held; a failure leaves it as
/// it was.
class ObjectMovedParamXml : public IntelligeBaseParamXml
{
public:
    ObjectMovedParamXml();
    ~ObjectMovedParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const ObjectMovedParam& param, SafePointer<DomainXmlNode>& node);
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ObjectMovedParam& param);
    bool createXmlString(const ObjectMovedParam& param, std::string& text);
    bool parseXmlString(const std::string& text, ObjectMovedParam& param);
    /// @}

    /// Adds the container "RegionList" with the regions to @p node. False if that is empty.
    bool createObjectMovedRegionParamListToDomainXmlNode(const std::vector<ObjectMovedRegionParam>& regions,
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
