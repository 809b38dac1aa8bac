#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// The addresses that a device has on its mobile network: the "I3GNetworkParam" document.
///
/// A missing attribute leaves its field.
class I3GNetworkParamXml : public IDomainXml
{
public:
    I3GNetworkParamXml();
    ~I3GNetworkParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setI3GNetworkParam(const I3GNetworkParam& param) { param_ = param; }
    I3GNetworkParam& getI3GNetworkParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const I3GNetworkParam& param);
    static bool readElement(const TiXmlElement& element, I3GNetworkParam& param);
    /// @}

private:
    I3GNetworkParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
