#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// Where a device stands in the network: the "HostNetwork" document.
///
/// A missing attribute resets its field.
class HostNetworkXml : public IDomainXml
{
public:
    HostNetworkXml();
    ~HostNetworkXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setHostNetwork(const HostNetwork& network) { network_ = network; }
    HostNetwork& getHostNetwork() { return network_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const HostNetwork& network);
    static bool readElement(const TiXmlElement& element, HostNetwork& network);
    /// @}

private:
    HostNetwork network_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
