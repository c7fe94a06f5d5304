// What is wrong with the layout of the page: sentences. Visible siblings with a text or a picture must not overlap.
(function () {
    const found = [];
    const wide = document.scrollingElement.scrollWidth;
    if (wide > innerWidth) {
        found.push("the document is " + wide + " wide in a window of " + innerWidth);
    }
    function isSeen(element) {
        const style = getComputedStyle(element);
        return style.display !== "none" && style.visibility !== "hidden" && !element.classList.contains("unseen");
    }
    function holds(element) {
        return element.querySelector("img, svg") !== null || element.tagName === "IMG" || element.textContent.trim() !== "";
    }
    function nameOf(element) {
        return element.tagName + "." + element.className + "#" + element.id;
    }
    document.querySelectorAll("body *").forEach((parent) => {
        if (parent.closest("svg, script, style") !== null) {
            return;
        }
        const boxes = Array.from(parent.parentElement.children)
            .filter((each) => isSeen(each) && holds(each) && !/^(SCRIPT|STYLE|BR)$/.test(each.tagName));
        if (boxes[0] !== parent) {
            return;
        }
        boxes.forEach((one, i) => boxes.slice(i + 1).forEach((other) => {
            const a = one.getBoundingClientRect();
            const b = other.getBoundingClientRect();
            const across = Math.min(a.right, b.right) - Math.max(a.left, b.left);
            const down = Math.min(a.bottom, b.bottom) - Math.max(a.top, b.top);
            if (across > 0.5 && down > 0.5) {
                found.push(nameOf(one) + " lies on " + nameOf(other));
            }
        }));
    });
    document.querySelectorAll("img").forEach((picture) => {
        const box = picture.getBoundingClientRect();
        if (isSeen(picture) && box.width > 0 && (box.left < -0.5 || box.right > innerWidth + 0.5)) {
            found.push(nameOf(picture) + " sticks out");
        }
    });
    return found;
}())
