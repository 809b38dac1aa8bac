#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The server that a device registers with: the "RegisterParam" document, and "RegisterParamList" for several.
///
/// A missing attribute resets its field, in both forms; the node form prints a line for it.
class RegisterParamXml : public IDomainXml
{
public:
    RegisterParamXml();
    ~RegisterParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRegisterParam(const RegisterParam& param) { param_ = param; }
    RegisterParam& getRegisterParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const RegisterParam& param);
    static bool readElement(const TiXmlElement& element, RegisterParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const RegisterParam& param, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<RegisterParam>& params, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, RegisterParam& param) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<RegisterParam>& params) const;
    bool createXmlString(const RegisterParam& param, std::string& text) const;
    bool createXmlString(const std::vector<RegisterParam>& params, std::string& text) const;
    bool parseXmlString(const std::string& text, RegisterParam& param) const;
    bool parseXmlString(const std::string& text, std::vector<RegisterParam>& params) const;
    /// @}

private:
    RegisterParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
