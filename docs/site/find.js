// The search of the site: all words, anywhere in names, headings and texts. It takes the place of Doxygen's own in its field.
let find_rows = [];

const find = {
    most: 40,
    selected: -1,

    init() {
        // The field is put into the page by Doxygen's script, when that is ready.
        const taken = document.getElementById("MSearchField");
        if (!taken) {
            window.setTimeout(find.init, 50);
            return;
        }
        const field = document.createElement("input");
        field.id = "MSearchField";
        field.type = "text";
        field.placeholder = "Search";
        field.autocomplete = "off";
        field.setAttribute("aria-label", "Search");
        taken.replaceWith(field);
        for (const own of ["MSearchSelect", "MSearchCloseImg"])
            document.getElementById(own)?.remove();
        find.field = field;
        find.list = document.createElement("div");
        find.list.id = "find-list";
        document.body.appendChild(find.list);
        field.addEventListener("focus", find.load);
        field.addEventListener("input", find.show);
        field.addEventListener("keydown", find.on_key);
        document.addEventListener("keydown", event => {
            if (event.key == "/" && document.activeElement != field) {
                event.preventDefault();
                field.focus();
            }
        });
        document.addEventListener("click", event => {
            if (event.target != field && !find.list.contains(event.target))
                find.list.style.display = "none";
        });
    },

    load() {
        if (find.script)
            return;
        find.script = document.createElement("script");
        find.script.src = find.root + "find_index.js";
        find.script.onload = find.show;
        document.head.appendChild(find.script);
    },

    // 0 for a row that lacks a word; the more the better otherwise.
    score([kind, name, owner, place, text], words) {
        const lower_name = name.toLowerCase();
        const all = (name + " " + owner + " " + text).toLowerCase();
        let points = kind == "page" ? 2 : 1;
        for (const word of words) {
            if (!all.includes(word))
                return 0;
            const at = lower_name.indexOf(word);
            if (lower_name == word)
                points += 40;
            else if (at >= 0)
                points += (at == 0 || /[\W_]/.test(lower_name[at - 1]) ? 20 : 8) + 4 * word.length / lower_name.length;
        }
        return points;
    },

    show() {
        const words = find.field.value.toLowerCase().split(/\s+/).filter(word => word);
        const found = words.length == 0 ? [] : find_rows.map(row => [find.score(row, words), row]).filter(([points]) => points > 0);
        found.sort((one, other) => other[0] - one[0]);
        find.selected = -1;
        find.list.replaceChildren(...found.slice(0, find.most).map(([, row]) => find.entry(row, words[0])));
        if (words.length > 0 && found.length == 0)
            find.list.textContent = find_rows.length ? "Nothing has all of these words." : "…";
        find.list.style.display = words.length ? "block" : "none";
    },

    entry([kind, name, owner, place, text], word) {
        const link = document.createElement("a");
        link.href = find.root + place;
        link.className = kind;
        const title = link.appendChild(document.createElement("b"));
        title.textContent = name;
        if (owner)
            link.appendChild(document.createElement("i")).textContent = owner;
        const at = Math.max(0, text.toLowerCase().indexOf(word) - 40);
        link.appendChild(document.createElement("span")).textContent = (at ? "… " : "") + text.substring(at, at + 140);
        return link;
    },

    on_key(event) {
        const entries = find.list.querySelectorAll("a");
        if (event.key == "Escape") {
            find.field.value = "";
            find.show();
        } else if (event.key == "Enter") {
            entries[Math.max(0, find.selected)]?.click();
            find.list.style.display = "none";
        } else if (event.key == "ArrowDown" || event.key == "ArrowUp") {
            entries[find.selected]?.classList.remove("selected");
            find.selected = Math.min(entries.length - 1, Math.max(0, find.selected + (event.key == "ArrowDown" ? 1 : -1)));
            entries[find.selected]?.classList.add("selected");
            entries[find.selected]?.scrollIntoView({block: "nearest"});
        } else {
            return;
        }
        event.preventDefault();
    }
};

window.addEventListener("load", find.init);
