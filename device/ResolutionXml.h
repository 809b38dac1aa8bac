#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// A size of pictures, by number: the "Resolution" document.
///
/// A missing attribute resets its field.
class ResolutionXml : public IDomainXml
{
public:
    ResolutionXml();
    ~ResolutionXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setResolution(const Resolution& resolution) { resolution_ = resolution; }
    Resolution& getResolution() { return resolution_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const Resolution& resolution);
    static bool readElement(const TiXmlElement& element, Resolution& resolution);
    /// @}

private:
    Resolution resolution_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
