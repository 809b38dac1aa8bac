#pragma once

#include "analysis/IntelligeBaseParamXml.h"
#include "domain/AnalysisRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>

/// A camera that is turned away: the "CameraMovedParam" document.
///
/// A missing base part gives a new one.
class CameraMovedParamXml : public IntelligeBaseParamXml
{
public:
    CameraMovedParamXml();
    ~CameraMovedParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const CameraMovedParam& param, SafePointer<DomainXmlNode>& node);
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CameraMovedParam& param);
    bool createXmlString(const CameraMovedParam& param, std::string& text);
    bool parseXmlString(const std::string& text, CameraMovedParam& param);
    /// @}

private:
    // A rule is written and read as a whole: what the base does with its own part is hidden.
    using IntelligeBaseParamXml::createDomainXmlNode;
    using IntelligeBaseParamXml::createXmlString;
    using IntelligeBaseParamXml::parseDomainXmlNode;
    using IntelligeBaseParamXml::parseXmlString;
};
