#pragma once

#include "analysis/IntelligeBaseParamXml.h"
#include "domain/AnalysisRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>

/// Pictures of bad quality: the "SignalBadParam" document.
///
/// A missing base part gives a new one, a missing "IsGetDetail" false.
class SignalBadParamXml : public IntelligeBaseParamXml
{
public:
    SignalBadParamXml();
    ~SignalBadParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const SignalBadParam& param, SafePointer<DomainXmlNode>& node);
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, SignalBadParam& param);
    bool createXmlString(const SignalBadParam& param, std::string& text);
    bool parseXmlString(const std::string& text, SignalBadParam& param);
    /// @}

private:
    // A rule is written and read as a whole: what the base does with its own part is hidden.
    using IntelligeBaseParamXml::createDomainXmlNode;
    using IntelligeBaseParamXml::createXmlString;
    using IntelligeBaseParamXml::parseDomainXmlNode;
    using IntelligeBaseParamXml::parseXmlString;
};
