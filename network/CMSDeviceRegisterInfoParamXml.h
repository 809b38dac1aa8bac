#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// Under which identity a device registers: the "DeviceRegisterInfoParam" document.
///
/// A missing attribute leaves its field in the document form; in the node form it resets it and prints a line.
class CMSDeviceRegisterInfoParamXml : public IDomainXml
{
public:
    CMSDeviceRegisterInfoParamXml();
    ~CMSDeviceRegisterInfoParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDeviceRegisterInfoParam(const CMSDeviceRegisterInfoParam& info) { info_ = info; }
    CMSDeviceRegisterInfoParam& getDeviceRegisterInfoParam() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const CMSDeviceRegisterInfoParam& info);
    static bool readElement(const TiXmlElement& element, CMSDeviceRegisterInfoParam& info);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const CMSDeviceRegisterInfoParam& info, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CMSDeviceRegisterInfoParam& info) const;
    bool createXmlString(const CMSDeviceRegisterInfoParam& info, std::string& text) const;
    bool parseXmlString(const std::string& text, CMSDeviceRegisterInfoParam& info) const;
    /// @}

private:
    CMSDeviceRegisterInfoParam info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
