#pragma once

#include "core/IDomainXml.h"
#include "domain/PtzRecords.h"

#include <string>
#include <tinyxml.h>

/// A position that a head can be sent to: the "PTZPreset" document.
///
/// A missing attribute resets its field.
class PTZPresetXml : public IDomainXml
{
public:
    PTZPresetXml();
    ~PTZPresetXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setPTZPreset(const PTZPreset& preset) { preset_ = preset; }
    PTZPreset& getPTZPreset() { return preset_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const PTZPreset& preset);
    static bool readElement(const TiXmlElement& element, PTZPreset& preset);
    /// @}

private:
    PTZPreset preset_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
