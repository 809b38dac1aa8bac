#pragma once

#include "core/IDomainXml.h"
#include "domain/AnalysisRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <vector>

/// The scene that an analysis looks at: the "AdvancedParam" document.
///
/// A missing property gives 0, a missing list an empty one; an item without its "LineCross" fails the reader. What is
/// read takes the place of all that the record held; a failure leaves it as it was.
class AdvancedParamXml : public IDomainXml
{
public:
    AdvancedParamXml();
    ~AdvancedParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AdvancedParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AdvancedParam& param) const;
    bool createXmlString(const AdvancedParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, AdvancedParam& param) const;
    /// @}

    /// Adds the container "PixelToRealSizeList" with the lines to @p node; the name is that of the rules' helpers.
    /// False if that is empty.
    bool createAdvancedRegionParamListToDomainXmlNode(const std::vector<PixelToRealSize>& sizes,
                                                      SafePointer<DomainXmlNode>& node) const;

    /// Adds the element "LineCross" to @p node. False if that is empty.
    bool createLineCrossToDomainXmlNode(const LineCross& line, SafePointer<DomainXmlNode>& node) const;
    /// Reads the child "LineCross" of @p node. False without it.
    bool parseLineCrossToDomainXmlNode(const SafePointer<DomainXmlNode>& node, LineCross& line) const;
};
