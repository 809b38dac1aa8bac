#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The time server of a device, second generation: the "NTPParamV2" document, and "NTPParamV2List" for several.
///
/// A missing attribute resets its field, in both forms; in the node form it prints a line. Unlike NTPParamXml, it
/// has no default port and no default protocol version.
class NTPParamV2Xml : public IDomainXml
{
public:
    NTPParamV2Xml();
    ~NTPParamV2Xml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setNTPParamV2(const NTPParamV2& param) { param_ = param; }
    NTPParamV2& getNTPParamV2() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const NTPParamV2& param);
    static bool readElement(const TiXmlElement& element, NTPParamV2& param);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const NTPParamV2& param, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<NTPParamV2>& params, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, NTPParamV2& param) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<NTPParamV2>& params) const;
    bool createXmlString(const NTPParamV2& param, std::string& text) const;
    bool createXmlString(const std::vector<NTPParamV2>& params, std::string& text) const;
    bool parseXmlString(const std::string& text, NTPParamV2& param) const;
    bool parseXmlString(const std::string& text, std::vector<NTPParamV2>& params) const;
    /// @}

private:
    NTPParamV2 param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
