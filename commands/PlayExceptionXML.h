#pragma once

#include "core/IDomainXml.h"
#include "domain/CommandRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Receivers of a playback that failed: the "PlayExceptionList" document.
///
/// The reader appends to the list, and no item fails. A missing attribute gives 0.
class PlayExceptionXML : public IDomainXml
{
public:
    PlayExceptionXML();
    ~PlayExceptionXML() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setPlayExceptionList(const std::vector<PlayException>& exceptions) { exceptions_ = exceptions; }
    std::vector<PlayException>& getPlayExceptionList() { return exceptions_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<PlayException>& exceptions);
    static bool readElement(const TiXmlElement& element, std::vector<PlayException>& exceptions);
    /// @}

    /// @name Numbers of 64 bits
    /// As peers convert them elsewhere; the document carries none. Both are always true.
    /// @{
    bool Int642Str(const long long& value, std::string& text) const;
    /// By way of a `double`: a fraction is cut off, and of more than 53 significant bits the lowest are lost. What is
    /// no number gives 0.
    bool str2Int64(const std::string& text, long long& value) const;
    /// @}

private:
    std::vector<PlayException> exceptions_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
