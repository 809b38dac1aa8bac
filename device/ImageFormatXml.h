#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// A format of pictures: the "ImageFormat" document.
///
/// A missing attribute resets its field.
class ImageFormatXml : public IDomainXml
{
public:
    ImageFormatXml();
    ~ImageFormatXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setImageFormat(const ImageFormat& format) { format_ = format; }
    ImageFormat& getImageFormat() { return format_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ImageFormat& format);
    static bool readElement(const TiXmlElement& element, ImageFormat& format);
    /// @}

private:
    ImageFormat format_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
