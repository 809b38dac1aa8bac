#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// What a playback channel is to play: the "RecordInfoList" document.
///
/// The reader appends to the list, and no item fails. What an item lacks is 0, empty or false; a missing "ExtendField"
/// leaves the codec's.
class RecordInfoXml : public IDomainXml
{
public:
    RecordInfoXml();
    ~RecordInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRecordInfoList(const std::vector<RecordInfo>& infos) { infos_ = infos; }
    std::vector<RecordInfo>& getRecordInfoList() { return infos_; }

    /// A number for the list as a whole, which the peers carry along; 0 when new.
    int getExtendField() const { return extendField_; }
    void setExtendField(int extendField) { extendField_ = extendField; }

    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<RecordInfo>& infos, int extendField);
    static bool readElement(const TiXmlElement& element, std::vector<RecordInfo>& infos, int& extendField);
    /// @}

private:
    std::vector<RecordInfo> infos_;
    int extendField_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
