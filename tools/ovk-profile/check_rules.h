#pragma once

#include "node.h"

#include <QSet>

namespace ovk_profile {

/// The commands that a product offers, layout by layout.
struct Offer
{
    QString product;
    QMap<QString, QSet<QString>> layouts;
};

/// What the catalogue offers in that product; in its only one if the name is empty. Throws
/// FileError if there is no such product.
Offer OfferOf(const File& catalogue, const QString& product);

/// The rules for one node by itself: types and ranges of its fields.
void CheckFields(const Node& node, const QString& path, const Report& report);

/// The rules between the children of one node: identifiers and keys that occur twice, and more than
/// a site takes.
void CheckChildren(const Node& node, const QString& path, const Report& report);

/// The rules for a whole profile: its header, the numbers in generated identifiers, and
/// composites that nobody can see.
void CheckProfile(const File& file, const Node& profile, const Report& report);

/// The rules for a whole catalogue: commands that layouts name and nobody defines.
void CheckCatalogue(const Node& catalogue, const Report& report);

/// Identifiers of a profile that the product does not offer.
void CheckOffer(const Node& profile, const Offer& offer, const Report& report);

} // namespace ovk_profile
