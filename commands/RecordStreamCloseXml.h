#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Ends a playback: the "RecordStreamCloseCommand" document.
///
/// A missing attribute leaves its field.
class RecordStreamCloseXml : public IDomainXml
{
public:
    RecordStreamCloseXml();
    ~RecordStreamCloseXml() override;

    /// Number of the playback, which the answer to its opening gave.
    int getManagerId() const { return managerId_; }
    void setManagerId(int managerId) { managerId_ = managerId; }

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }
    /// @}

private:
    int managerId_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
