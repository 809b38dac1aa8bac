#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The loudhailer of a camera: the "LoudhailerParam" document, and "LoudhailerParamList" for several.
///
/// A missing attribute resets its field, in both forms; the node form prints a line for it.
class LoudhailerParamXml : public IDomainXml
{
public:
    LoudhailerParamXml();
    ~LoudhailerParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setLoudhailerParam(const LoudhailerParam& param) { param_ = param; }
    LoudhailerParam& getLoudhailerParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const LoudhailerParam& param);
    static bool readElement(const TiXmlElement& element, LoudhailerParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const LoudhailerParam& param, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<LoudhailerParam>& params, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, LoudhailerParam& param) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<LoudhailerParam>& params) const;
    bool createXmlString(const LoudhailerParam& param, std::string& text) const;
    bool createXmlString(const std::vector<LoudhailerParam>& params, std::string& text) const;
    bool parseXmlString(const std::string& text, LoudhailerParam& param) const;
    bool parseXmlString(const std::string& text, std::vector<LoudhailerParam>& params) const;
    /// @}

private:
    LoudhailerParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
