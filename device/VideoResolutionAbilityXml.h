#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What an encoder can do with pictures of one size: the "VideoResolutionAbility" document.
///
/// What is missing is left, but for "IFrameIntervalUnit", which becomes 1. The list is appended to; an item without a
/// number is 0.
class VideoResolutionAbilityXml : public IDomainXml
{
public:
    VideoResolutionAbilityXml();
    ~VideoResolutionAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setVideoResolutionAbility(const VideoResolutionAbility& ability) { ability_ = ability; }
    VideoResolutionAbility& getVideoResolutionAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const VideoResolutionAbility& ability);
    static bool readElement(const TiXmlElement& element, VideoResolutionAbility& ability);
    /// @}

private:
    VideoResolutionAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
