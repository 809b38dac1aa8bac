#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// One camera of a device: the "CameraDevice" document, and "CameraDeviceList" for several.
///
/// A missing attribute resets its field, in both forms.
class CameraDeviceXml : public IDomainXml
{
public:
    CameraDeviceXml();
    ~CameraDeviceXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setCameraDevice(const CameraDevice& camera) { camera_ = camera; }
    CameraDevice& getCameraDevice() { return camera_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const CameraDevice& camera);
    static bool readElement(const TiXmlElement& element, CameraDevice& camera);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const CameraDevice& camera, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<CameraDevice>& cameras, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CameraDevice& camera) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<CameraDevice>& cameras) const;
    bool createXmlString(const CameraDevice& camera, std::string& text) const;
    bool createXmlString(const std::vector<CameraDevice>& cameras, std::string& text) const;
    bool parseXmlString(const std::string& text, CameraDevice& camera) const;
    bool parseXmlString(const std::string& text, std::vector<CameraDevice>& cameras) const;
    /// @}

private:
    CameraDevice camera_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
