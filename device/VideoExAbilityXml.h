#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What a device can do with video: the "VideoExAbility" document.
///
/// A missing attribute leaves its field, also in "VideoOutAbility". The lists are appended to.
class VideoExAbilityXml : public IDomainXml
{
public:
    VideoExAbilityXml();
    ~VideoExAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setVideoExAbility(const VideoExAbility& ability) { ability_ = ability; }
    VideoExAbility& getVideoExAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const VideoExAbility& ability);
    static bool readElement(const TiXmlElement& element, VideoExAbility& ability);
    /// @}

private:
    VideoExAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
