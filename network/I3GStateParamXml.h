#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// How a device stands with its mobile network: the "I3GStateParam" document.
///
/// A missing attribute leaves its field.
class I3GStateParamXml : public IDomainXml
{
public:
    I3GStateParamXml();
    ~I3GStateParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setI3GStateParam(const I3GStateParam& param) { param_ = param; }
    I3GStateParam& getI3GStateParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const I3GStateParam& param);
    static bool readElement(const TiXmlElement& element, I3GStateParam& param);
    /// @}

private:
    I3GStateParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
