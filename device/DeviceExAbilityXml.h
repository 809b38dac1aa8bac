#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What a device can do: the "DeviceExAbility" document.
///
/// A missing child leaves its field. One that is there replaces it, the lists included. A child that cannot be read
/// ends the reader with false, but for two: a bad "WorkingModeAbility" gives the one mode 1, "VedioMode", and a bad
/// "LanguageAbility" the one language 1, "English".
class DeviceExAbilityXml : private IDomainXml
{
public:
    DeviceExAbilityXml();
    ~DeviceExAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDeviceExAbility(const DeviceExAbility& ability) { ability_ = ability; }
    DeviceExAbility& getDeviceExAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DeviceExAbility& ability);
    static bool readElement(const TiXmlElement& element, DeviceExAbility& ability);
    /// @}

private:
    DeviceExAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
