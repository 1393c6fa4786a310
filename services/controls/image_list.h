#pragma once
// ImageList: pictures shared by index or key with a tree or a list. ListImages
// is 1-based; keys are unique. Adding at an index past Count + 1 is refused:
// the list has no holes.

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "services/controls/control.h"
#include "services/controls/picture.h"
#include "services/runtime/variant.h"

namespace qb {

class ImageList;

class ListImage {
 public:
  int32_t Index() const { return index_; }
  const std::string& Key() const { return key_; }
  const qb::Picture& Picture() const { return picture_; }
  const std::string& Tag() const { return tag_; }
  void setTag(std::string value) { tag_ = std::move(value); }

 private:
  friend class ListImageCollection;
  int32_t index_ = 0;
  std::string key_;
  qb::Picture picture_;
  std::string tag_;
};

class ListImageCollection {
 public:
  explicit ListImageCollection(ImageList& owner) : owner_(owner) {}

  // Adds a picture. index: where it goes (1..Count+1), 0 = at the end; an
  // index past Count + 1 is refused with RuntimeError(err::kIndexOutOfBounds,
  // "Index out of bounds"); a key already present with
  // RuntimeError(err::kKeyNotUnique, "Key is not unique in collection").
  // An empty key means none.
  ListImage& Add(int32_t index, const std::string& key, const qb::Picture& picture);
  ListImage& Add(const qb::Picture& picture) { return Add(0, "", picture); }
  int32_t Count() const { return static_cast<int32_t>(images_.size()); }
  // By index (from 1) or key. A bad index is refused with err::kIndexOutOfBounds,
  // an unknown key with RuntimeError(err::kElementNotFound, "Element not found").
  ListImage& item(int32_t index);
  ListImage& item(const std::string& key);
  // An index (Long or Integer) or a key (String); Empty is refused.
  ListImage& item(const Variant& indexOrKey);
  ListImage& operator()(int32_t index) { return item(index); }
  ListImage& operator()(const std::string& key) { return item(key); }
  // Nullptr when there is no such image (no failure).
  const ListImage* find(const Variant& indexOrKey) const;
  void Remove(int32_t index);
  void Clear();

 private:
  void renumber(size_t from = 0);
  ImageList& owner_;
  std::vector<std::unique_ptr<ListImage>> images_;
  std::unordered_map<std::string, ListImage*> keys_;  // the keyed images
};

class ImageList : public Control {
 public:
  using Control::Control;

  ListImageCollection& ListImages() { return images_; }
  const ListImageCollection& ListImages() const { return images_; }
  // Size of the pictures in pixels (16 for small icons, 32 for large).
  int32_t ImageWidth() const { return imageWidth_; }
  int32_t ImageHeight() const { return imageHeight_; }
  void setImageWidth(int32_t value) { imageWidth_ = value; }
  void setImageHeight(int32_t value) { imageHeight_ = value; }

  // The picture for an index or key, or an empty Picture when there is none.
  qb::Picture pictureOf(const Variant& indexOrKey) const;

 private:
  friend class ListImageCollection;
  void changed() { notify(ControlChange::Images); }
  ListImageCollection images_{*this};
  int32_t imageWidth_ = 16;
  int32_t imageHeight_ = 16;
};

}  // namespace qb
