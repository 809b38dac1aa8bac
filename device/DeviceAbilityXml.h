#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What a device can do, in the older description: the "DeviceAbility" document.
///
/// It is for writing. Its reader gives false for a text with "VideoAbility" or "AudioAbility", and leaves the record as
/// it was in any case; read those two with VideoAbilityXml and AudioAbilityXml.
class DeviceAbilityXml : private IDomainXml
{
public:
    DeviceAbilityXml();
    ~DeviceAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDeviceAbility(const DeviceAbility& ability) { ability_ = ability; }
    DeviceAbility& getDeviceAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DeviceAbility& ability);
    static bool readElement(const TiXmlElement& element, DeviceAbility& ability);
    /// @}

private:
    DeviceAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
