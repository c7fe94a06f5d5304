// Metadata fields in the reader's words: their names, their values, their changes. Pure but for translation.

import { fill } from "../../lib/wording.js";

/** The name of a field. */
export function fieldTitle(name) {
    const titles = {
        title: qsTr("Title"), headline: qsTr("Headline"), caption: qsTr("Caption"), keywords: qsTr("Keywords"),
        creator: qsTr("Creator"), jobTitle: qsTr("Job title"), contactAddress: qsTr("Address"),
        contactPhone: qsTr("Phone"), contactEmail: qsTr("Email"), contactWeb: qsTr("Website"),
        copyright: qsTr("Copyright"), usageTerms: qsTr("Usage terms"), credit: qsTr("Credit line"),
        source: qsTr("Source"),
        instructions: qsTr("Instructions"), jobIdentifier: qsTr("Job identifier"), sublocation: qsTr("Sublocation"),
        city: qsTr("City"), state: qsTr("State"), country: qsTr("Country"), countryCode: qsTr("Country code"),
        dateTaken: qsTr("Date taken"), rating: qsTr("Rating"), label: qsTr("Colour label"),
    };
    return titles[name] || name;
}

/** The name of a group of private data. */
export function privateTitle(name) {
    const titles = {
        places: qsTr("Places"), serialNumbers: qsTr("Serial numbers"), names: qsTr("Owner and computer names"),
        faces: qsTr("Face regions"), makerNotes: qsTr("Maker notes"), thumbnails: qsTr("Embedded thumbnails"),
    };
    return titles[name] || name;
}

/** The colour labels on offer: what is written into files, in English as other programs do, and their names. */
export function labels() {
    return [["Red", qsTr("Red")], ["Yellow", qsTr("Yellow")], ["Green", qsTr("Green")], ["Blue", qsTr("Blue")],
            ["Purple", qsTr("Purple")]];
}

export function ratingText(rating) {
    return Number(rating) < 0 ? qsTr("Rejected") : qsTr("%n stars", "", Number(rating));
}

function oneText(name, text) {
    if (name === "rating") {
        return ratingText(text);
    }
    const label = name === "label" ? labels().find((each) => each[0] === text) : undefined;
    return label === undefined ? text.replace(/\s+/g, " ") : label[1];
}

/** The value of a field, in a line; "" for nothing. */
export function valueText(name, texts) {
    const joined = texts.map((text) => oneText(name, text)).join(name === "creator" ? "; " : ", ");
    return name === "dateTaken" ? joined.replace("T", " ") : joined;
}

// What is added to and removed from a list of keywords.
function listChange(before, after) {
    const gone = before.filter((word) => after.indexOf(word) < 0).map((word) => "−" + word);
    return after.filter((word) => before.indexOf(word) < 0).map((word) => "+" + word).concat(gone).join(", ");
}

/** What happens to a field, in a line. */
export function changeText(name, before, after) {
    const title = fieldTitle(name);
    const old = valueText(name, before);
    const now = valueText(name, after);
    if (name === "keywords" && before.length > 0 && after.length > 0 && listChange(before, after) !== "") {
        return fill(qsTr("%1: %2"), title, listChange(before, after));
    }
    if (now === "") {
        return fill(qsTr("%1: cleared, was “%2”"), title, old);
    }
    return old === "" || old === now
        ? fill(qsTr("%1: “%2”"), title, now) : fill(qsTr("%1: “%2” → “%3”"), title, old, now);
}

/** The values of a field in EXIF, IPTC and XMP if they disagree: all three. */
export function disputeText(name, said) {
    const quoted = (texts) => (texts.length === 0 ? qsTr("nothing") : "“" + valueText(name, texts) + "”");
    return fill(qsTr("%1: EXIF %2, IPTC %3, XMP %4"), fieldTitle(name), quoted(said.exif), quoted(said.iptc),
                quoted(said.xmp));
}
