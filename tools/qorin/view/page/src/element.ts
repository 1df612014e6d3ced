/** An element with a class and what is in it. */
export function element<Name extends keyof HTMLElementTagNameMap>(
  name: Name,
  className = '',
  ...content: (Node | string)[]
): HTMLElementTagNameMap[Name] {
  const made = document.createElement(name);
  if (className) made.className = className;
  made.append(...content);
  return made;
}

export function byId(id: string): HTMLElement {
  const found = document.getElementById(id);
  if (!found) throw new Error(`no element ${id}`);
  return found;
}

/** Changes the text only when it is another: most of what is shown stays as it is. */
export function setText(node: HTMLElement, text: string): void {
  if (node.textContent !== text) node.textContent = text;
}

export function setTone(node: HTMLElement, tone: string): void {
  if (node.dataset.tone !== tone) node.dataset.tone = tone;
}
