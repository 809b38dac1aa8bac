#pragma once

#include "core/IDomainXml.h"

#include <cstdint>
#include <string>
#include <tinyxml.h>

/// The web server of a device: the "WebParam" document.
///
/// A missing attribute leaves its field.
class WebParamXml : public IDomainXml
{
public:
    WebParamXml();
    ~WebParamXml() override;

    /// The port that it listens on.
    std::uint16_t getWebServerPort() const { return webServerPort_; }
    void setWebServerPort(const unsigned short& webServerPort) { webServerPort_ = webServerPort; }

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }
    /// @}

private:
    std::uint16_t webServerPort_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
