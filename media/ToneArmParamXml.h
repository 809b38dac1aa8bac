#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The tone arm of a camera: the "ToneArmParam" document, and "ToneArmParamList" for several.
///
/// A missing attribute resets its field, in both forms; the node form prints a line for it.
class ToneArmParamXml : public IDomainXml
{
public:
    ToneArmParamXml();
    ~ToneArmParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setToneArmParam(const ToneArmParam& param) { param_ = param; }
    ToneArmParam& getToneArmParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ToneArmParam& param);
    static bool readElement(const TiXmlElement& element, ToneArmParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const ToneArmParam& param, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<ToneArmParam>& params, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ToneArmParam& param) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<ToneArmParam>& params) const;
    bool createXmlString(const ToneArmParam& param, std::string& text) const;
    bool createXmlString(const std::vector<ToneArmParam>& params, std::string& text) const;
    bool parseXmlString(const std::string& text, ToneArmParam& param) const;
    bool parseXmlString(const std::string& text, std::vector<ToneArmParam>& params) const;
    /// @}

private:
    ToneArmParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
