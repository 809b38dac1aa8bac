#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What one camera of a device can do, in the older description: the "CameraAbility" document.
///
/// A missing value resets its field. The lists are appended to.
class CameraAbilityXml : public IDomainXml
{
public:
    CameraAbilityXml();
    ~CameraAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setCameraAbility(const CameraAbility& ability) { ability_ = ability; }
    CameraAbility& getCameraAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const CameraAbility& ability);
    static bool readElement(const TiXmlElement& element, CameraAbility& ability);
    /// @}

private:
    CameraAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
