#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The time server of a device: the "NTPParam" document. A list of them is an "NTPParam" that holds "NTPParam".
///
/// A missing attribute resets its field in the document form. In the node form a missing "NTPPort" gives 123, a missing
/// "IPProtoVer" 1, and any other 0, empty or false.
class NTPParamXml : public IDomainXml
{
public:
    NTPParamXml();
    ~NTPParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setNTPParam(const NTPParam& param) { param_ = param; }
    NTPParam& getNTPParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const NTPParam& param);
    static bool readElement(const TiXmlElement& element, NTPParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to. As lists and records share their root, a text of either kind is read as
    /// the other without complaint; callers know which one they hold.
    /// @{
    bool createDomainXmlNode(const NTPParam& param, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<NTPParam>& params, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, NTPParam& param) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<NTPParam>& params) const;
    bool createXmlString(const NTPParam& param, std::string& text) const;
    bool createXmlString(const std::vector<NTPParam>& params, std::string& text) const;
    bool parseXmlString(const std::string& text, NTPParam& param) const;
    bool parseXmlString(const std::string& text, std::vector<NTPParam>& params) const;
    /// @}

private:
    NTPParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
