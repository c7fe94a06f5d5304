// The results of a batch in the form that the page needs. Pure; no service is used.

/**
 * The pictures of a page: {path: of the input, index, files: [{path: below the folder, width, height}], smallest
 * first}; those without results are left out.
 *
 * @param made    the outputs of each picture, or undefined; see RecipeBatch.take()
 * @param folder  of the unfinished page
 */
export function picturesOf(items, made, folder) {
    return items.map((item, i) => ({
        path: item.photo.path, index: item.number,
        files: (made[i] || []).filter((output) => output.status === "OK")
            .map((output) => ({ path: output.path.slice(folder.length + 1), width: output.width,
                                height: output.height }))
            .sort((one, other) => one.width - other.width),
    })).filter((picture) => picture.files.length > 0);
}

/** The paths of outputs once the folder is at its destination. */
export function movedTo(outputs, from, to) {
    return outputs.map((output) => (output.path.startsWith(from + "/")
        ? Object.assign({}, output, { path: to + output.path.slice(from.length) }) : output));
}
