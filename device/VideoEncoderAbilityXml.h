#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What an encoder of a device can do: the "VideoEncoderAbility" document.
///
/// A missing attribute leaves its field. The list is appended to.
class VideoEncoderAbilityXml : public IDomainXml
{
public:
    VideoEncoderAbilityXml();
    ~VideoEncoderAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setVideoEncoderAbility(const VideoEncoderAbility& ability) { ability_ = ability; }
    VideoEncoderAbility& getVideoEncoderAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const VideoEncoderAbility& ability);
    static bool readElement(const TiXmlElement& element, VideoEncoderAbility& ability);
    /// @}

private:
    VideoEncoderAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
