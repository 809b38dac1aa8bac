#pragma once

#include "core/IDomainXml.h"
#include "domain/CommandRecords.h"

#include <string>
#include <tinyxml.h>

/// What the streams of a camera are, for a central station: the "CMSStreamParam" document.
///
/// A missing "CameraID" resets the camera's number. Streams are added to those that the record has.
class CMSStreamParamXml : public IDomainXml
{
public:
    CMSStreamParamXml();
    ~CMSStreamParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setCMSStreamParam(const CMSStreamParam& param) { param_ = param; }
    CMSStreamParam& getCMSStreamParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const CMSStreamParam& param);
    static bool readElement(const TiXmlElement& element, CMSStreamParam& param);
    /// @}

private:
    CMSStreamParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
