#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// Whether a device can reach mobile networks of the third generation: the "I3GAbilityParam" document.
///
/// A missing attribute leaves its field.
class I3GAbilityParamXml : public IDomainXml
{
public:
    I3GAbilityParamXml();
    ~I3GAbilityParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setI3GAbilityParam(const I3GAbilityParam& param) { param_ = param; }
    I3GAbilityParam& getI3GAbilityParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const I3GAbilityParam& param);
    static bool readElement(const TiXmlElement& element, I3GAbilityParam& param);
    /// @}

private:
    I3GAbilityParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
