#include "services/controls/image_list.h"

#include "services/controls/collection_support.h"

namespace qb {

ListImage& ListImageCollection::Add(int32_t index, const std::string& key,
                                    const qb::Picture& picture) {
  if (index < 0 || index > Count() + 1) control_failures::indexOutOfBounds();
  if (!key.empty() && keys_.count(key)) control_failures::keyNotUnique();
  if (index == 0) index = Count() + 1;
  auto image = std::make_unique<ListImage>();
  image->key_ = key;
  image->picture_ = picture;
  ListImage& added = *image;
  images_.insert(images_.begin() + (index - 1), std::move(image));
  if (!key.empty()) keys_[key] = &added;
  renumber(index - 1);
  owner_.changed();
  return added;
}

ListImage& ListImageCollection::item(int32_t index) {
  if (index < 1 || index > Count()) control_failures::indexOutOfBounds();
  return *images_[index - 1];
}

ListImage& ListImageCollection::item(const std::string& key) {
  auto found = keys_.find(key);
  if (found == keys_.end()) control_failures::elementNotFound();
  return *found->second;
}

ListImage& ListImageCollection::item(const Variant& indexOrKey) {
  return collection_support::itemByIndexOrKey(*this, indexOrKey);
}

const ListImage* ListImageCollection::find(const Variant& indexOrKey) const {
  if (indexOrKey.isString()) {
    auto found = keys_.find(indexOrKey.rawString());
    if (found != keys_.end()) return found->second;
  } else if (indexOrKey.type() == VarType::Integer || indexOrKey.type() == VarType::Long) {
    int32_t index = indexOrKey.rawInt();
    if (index >= 1 && index <= Count()) return images_[index - 1].get();
  }
  return nullptr;
}

void ListImageCollection::Remove(int32_t index) {
  const std::string& key = item(index).Key();
  if (!key.empty()) keys_.erase(key);
  images_.erase(images_.begin() + (index - 1));
  renumber(index - 1);
  owner_.changed();
}

void ListImageCollection::Clear() {
  keys_.clear();
  images_.clear();
  owner_.changed();
}

void ListImageCollection::renumber(size_t from) {
  collection_support::numberFromOne(images_, &ListImage::index_, from);
}

qb::Picture ImageList::pictureOf(const Variant& indexOrKey) const {
  const ListImage* image = images_.find(indexOrKey);
  return image ? image->Picture() : qb::Picture();
}

}  // namespace qb
