#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The group addresses to which cameras send their streams: the "AVStreamMulticastAddrList" document.
///
/// Lists are appended to. A missing attribute leaves 0 or empty in its item, in both forms, but for "CameraId" in the
/// node form: that prints a line and gives 1. The document form takes items of any name from the first
/// "AVStreamMulticastAddr" on, the node form only those of that name.
class AVStreamMulticastAddrXml : public IDomainXml
{
public:
    AVStreamMulticastAddrXml();
    ~AVStreamMulticastAddrXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAVStreamMulticastAddrList(const std::vector<AVStreamMulticastAddr>& addresses) { addresses_ = addresses; }
    std::vector<AVStreamMulticastAddr>& getAVStreamMulticastAddrList() { return addresses_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<AVStreamMulticastAddr>& addresses);
    static bool readElement(const TiXmlElement& element, std::vector<AVStreamMulticastAddr>& addresses);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const std::vector<AVStreamMulticastAddr>& addresses,
                             SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                            std::vector<AVStreamMulticastAddr>& addresses) const;
    bool createXmlString(const std::vector<AVStreamMulticastAddr>& addresses, std::string& text) const;
    /// Prints @p text first.
    bool parseXmlString(const std::string& text, std::vector<AVStreamMulticastAddr>& addresses) const;
    /// @}

private:
    std::vector<AVStreamMulticastAddr> addresses_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
