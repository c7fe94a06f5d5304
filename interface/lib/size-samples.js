// Which pictures of a list represent the others when the size of all results is estimated. Pure; no service is used.

export const MOST = 12;

function density(size) {
    return size.pixels > 0 && size.sourcePixels > 0 ? size.bytes / size.sourcePixels : 0;
}

/**
 * Up to twelve pictures spread over the list: [{size, pixels, bytes: -1}]. Pictures are ordered by detail, measured in
 * bytes per pixel; each sample represents the same number of neighbours, and pixels is the sum over their results.
 *
 * @param sizes  [{id, pixels (of the result), bytes, sourcePixels}]
 */
export function sampled(sizes) {
    const sorted = sizes.slice().sort((a, b) => density(a) - density(b));
    const count = Math.min(MOST, sorted.length);
    const samples = [];
    for (let i = 0; i < count; i += 1) {
        const place = (number) => Math.floor((number * sorted.length) / count);
        const part = sorted.slice(place(i), place(i + 1));
        samples.push({ size: part[Math.floor(part.length / 2)], bytes: -1,
                       pixels: part.reduce((sum, size) => sum + size.pixels, 0) });
    }
    return samples;
}

/** The bytes of all results, from samples whose bytes are known; -1 if too few are. */
export function estimated(samples) {
    const known = samples.filter((sample) => sample.bytes >= 0 && sample.size.pixels > 0);
    if (known.length * 2 < samples.length || known.length === 0) {
        return -1;
    }
    const all = samples.reduce((sum, sample) => sum + sample.pixels, 0);
    const covered = known.reduce((sum, sample) => sum + sample.pixels, 0);
    const bytes = known.reduce((sum, sample) => sum + sample.bytes * (sample.pixels / sample.size.pixels), 0);
    return Math.round((bytes * all) / covered);
}
