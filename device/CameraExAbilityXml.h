#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What one camera of a device can do: the "CameraExAbility" document.
///
/// What is missing is left; the lists are appended to.
class CameraExAbilityXml : public IDomainXml
{
public:
    CameraExAbilityXml();
    ~CameraExAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setCameraExAbility(const CameraExAbility& ability) { ability_ = ability; }
    CameraExAbility& getCameraExAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const CameraExAbility& ability);
    static bool readElement(const TiXmlElement& element, CameraExAbility& ability);
    /// @}

private:
    CameraExAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
