#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What a device can do with video, in the older description: the "VideoAbility" document.
///
/// "CameraNum" is written and never read: its field is left. Cameras are added to those that the record has.
class VideoAbilityXml : public IDomainXml
{
public:
    VideoAbilityXml();
    ~VideoAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setVideoAbility(const VideoAbility& ability) { ability_ = ability; }
    VideoAbility& getVideoAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const VideoAbility& ability);
    static bool readElement(const TiXmlElement& element, VideoAbility& ability);
    /// @}

private:
    VideoAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
