#pragma once

#include "core/IDomainXml.h"
#include "domain/CoreRecords.h"

#include <string>
#include <tinyxml.h>

/// The versions of a device: the "Version" document.
///
/// A missing attribute resets its field.
class VersionXml : public IDomainXml
{
public:
    VersionXml();
    ~VersionXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setVersion(const Version& version) { version_ = version; }
    Version& getVersion() { return version_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const Version& version);
    static bool readElement(const TiXmlElement& element, Version& version);
    /// @}

private:
    Version version_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
