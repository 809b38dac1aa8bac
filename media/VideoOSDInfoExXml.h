#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The texts on the pictures of several cameras: the "VideoOSDInfoExList" document.
///
/// A camera without "CameraId" has 0, and one without "OSDInfoList" no texts, in both forms. Both readers append to the
/// list.
class VideoOSDInfoExXml : public IDomainXml
{
public:
    VideoOSDInfoExXml();
    ~VideoOSDInfoExXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setVideoOSDInfoExList(const std::vector<VideoOSDInfoEx>& videos) { videos_ = videos; }
    std::vector<VideoOSDInfoEx>& getVideoOSDInfoExList() { return videos_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<VideoOSDInfoEx>& videos);
    static bool readElement(const TiXmlElement& element, std::vector<VideoOSDInfoEx>& videos);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const std::vector<VideoOSDInfoEx>& videos, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<VideoOSDInfoEx>& videos) const;
    bool createXmlString(const std::vector<VideoOSDInfoEx>& videos, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<VideoOSDInfoEx>& videos) const;
    /// @}

private:
    std::vector<VideoOSDInfoEx> videos_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
