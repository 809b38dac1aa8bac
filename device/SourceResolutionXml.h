#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// How the cameras of a device take their pictures in: the "SourceResolutionList" document.
///
/// The list is appended to, each time with a fresh item, in which a missing attribute leaves 0 or empty. The television
/// system and the size stand in attributes of the item, not in children.
class SourceResolutionXml : public IDomainXml
{
public:
    SourceResolutionXml();
    ~SourceResolutionXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSourceResolutionList(const std::vector<SourceResolution>& sources) { sources_ = sources; }
    std::vector<SourceResolution>& getSourceResolutionList() { return sources_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<SourceResolution>& sources);
    static bool readElement(const TiXmlElement& element, std::vector<SourceResolution>& sources);
    /// @}

private:
    std::vector<SourceResolution> sources_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
