#pragma once

#include "core/IDomainXml.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The streams of cameras: the "AVStreamParamList" document.
///
/// The reader appends to the list. A missing "IFrameIntervalUnit" gives 1, any other missing attribute 0 or an empty
/// text.
class AVStreamParamXml : public IDomainXml
{
public:
    AVStreamParamXml();
    ~AVStreamParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAVStreamParamList(const std::vector<AVStreamParam>& streams) { streams_ = streams; }
    std::vector<AVStreamParam>& getAVStreamParamList() { return streams_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<AVStreamParam>& streams);
    static bool readElement(const TiXmlElement& element, std::vector<AVStreamParam>& streams);
    /// @}

private:
    std::vector<AVStreamParam> streams_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
