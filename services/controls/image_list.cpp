#include "services/controls/image_list.h"

#include "services/controls/collection_support.h"

namespace qb {

ListImage& ListImageCollection::Add(int32_t index, const std::string& key,
                                    const qb::Picture& picture) {
  if (index < 0 || index > Count() + 1) control_failures::indexOutOfBounds();
  if (!key.empty() && find(Variant(key))) control_failures::keyNotUnique();
  if (index == 0) index = Count() + 1;
  auto image = std::make_unique<ListImage>();
  image->key_ = key;
  image->picture_ = picture;
  ListImage& added = *image;
  images_.insert(images_.begin() + (index - 1), std::move(image));
  renumber();
  owner_.changed();
  return added;
}

ListImage& ListImageCollection::item(int32_t index) {
  if (index < 1 || index > Count()) control_failures::indexOutOfBounds();
  return *images_[index - 1];
}

ListImage& ListImageCollection::item(const std::string& key) {
  for (auto& image : images_) {
    if (image->key_ == key) return *image;
  }
  control_failures::elementNotFound();
}

ListImage& ListImageCollection::item(const Variant& indexOrKey) {
  return collection_support::itemByIndexOrKey(*this, indexOrKey);
}

const ListImage* ListImageCollection::find(const Variant& indexOrKey) const {
  if (indexOrKey.isString()) {
    for (auto& image : images_) {
      if (image->key_ == indexOrKey.rawString()) return image.get();
    }
  } else if (indexOrKey.type() == VarType::Integer || indexOrKey.type() == VarType::Long) {
    int32_t index = indexOrKey.rawInt();
    if (index >= 1 && index <= Count()) return images_[index - 1].get();
  }
  return nullptr;
}

void ListImageCollection::Remove(int32_t index) {
  item(index);
  images_.erase(images_.begin() + (index - 1));
  renumber();
  owner_.changed();
}

void ListImageCollection::Clear() {
  images_.clear();
  owner_.changed();
}

void ListImageCollection::renumber() {
  collection_support::numberFromOne(images_, &ListImage::index_);
}

qb::Picture ImageList::pictureOf(const Variant& indexOrKey) const {
  const ListImage* image = images_.find(indexOrKey);
  return image ? image->Picture() : qb::Picture();
}

}  // namespace qb
