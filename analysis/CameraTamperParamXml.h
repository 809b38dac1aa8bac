#pragma once

#include "analysis/IntelligeBaseParamXml.h"
#include "domain/AnalysisRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>

/// A camera that is covered: the "CameraTamperParam" document.
///
/// A missing base part gives a new one, a missing "MinTime" 0.
class CameraTamperParamXml : public IntelligeBaseParamXml
{
public:
    CameraTamperParamXml();
    ~CameraTamperParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const CameraTamperParam& param, SafePointer<DomainXmlNode>& node);
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CameraTamperParam& param);
    bool createXmlString(const CameraTamperParam& param, std::string& text);
    bool parseXmlString(const std::string& text, CameraTamperParam& param);
    /// @}

private:
    // A rule is written and read as a whole: what the base does with its own part is hidden.
    using IntelligeBaseParamXml::createDomainXmlNode;
    using IntelligeBaseParamXml::createXmlString;
    using IntelligeBaseParamXml::parseDomainXmlNode;
    using IntelligeBaseParamXml::parseXmlString;
};
