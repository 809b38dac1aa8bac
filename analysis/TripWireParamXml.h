#pragma once

#include "analysis/IntelligeBaseParamXml.h"
#include "domain/AnalysisRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <vector>

/// Objects that cross a line: the "TripWireParam" document.
///
/// A missing property gives 0 or false, but a "TargetType" 1, a "MinTargetSize" 1000 and a "MaxTargetSize" 100000; a
/// missing base part or "RegionList" gives an empty one. A region without its "LineCross" fails the rule. What is read
/// takes the place of all that the record held; a failure leaves it as it was.
class TripWireParamXml : public IntelligeBaseParamXml
{
public:
    TripWireParamXml();
    ~TripWireParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const TripWireParam& param, SafePointer<DomainXmlNode>& node);
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, TripWireParam& param);
    bool createXmlString(const TripWireParam& param, std::string& text);
    bool parseXmlString(const std::string& text, TripWireParam& param);
    /// @}

    /// Adds the container "RegionList" with the regions to @p node. False if that is empty.
    bool createTripWireRegionParamListToDomainXmlNode(const std::vector<TripWireRegionParam>& regions,
                                                      SafePointer<DomainXmlNode>& node);

    /// Adds the element "LineCross" to @p node. False if that is empty.
    bool createLineCrossToDomainXmlNode(const LineCross& line, SafePointer<DomainXmlNode>& node);
    /// Reads the child "LineCross" of @p node. False without it.
    bool parseLineCrossToDomainXmlNode(const SafePointer<DomainXmlNode>& node, LineCross& line);

private:
    // A rule is written and read as a whole: what the base does with its own part is hidden.
    using IntelligeBaseParamXml::createDomainXmlNode;
    using IntelligeBaseParamXml::createXmlString;
    using IntelligeBaseParamXml::parseDomainXmlNode;
    using IntelligeBaseParamXml::parseXmlString;
};
