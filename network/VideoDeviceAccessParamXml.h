#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// How a recorder reaches the cameras that are attached to it: the "VideoDeviceAccessParamList" document.
///
/// The reader appends to the list, and takes only items named "VideoDeviceAccessParam". A missing attribute leaves 0,
/// empty or false in its item.
class VideoDeviceAccessParamXml : private IDomainXml
{
public:
    VideoDeviceAccessParamXml();
    ~VideoDeviceAccessParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setVideoDeviceAccessParamList(const std::vector<VideoDeviceAccessParam>& params) { params_ = params; }
    std::vector<VideoDeviceAccessParam>& getVideoDeviceAccessParamList() { return params_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<VideoDeviceAccessParam>& params);
    static bool readElement(const TiXmlElement& element, std::vector<VideoDeviceAccessParam>& params);
    /// @}

private:
    std::vector<VideoDeviceAccessParam> params_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
