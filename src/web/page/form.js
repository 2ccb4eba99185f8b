// The open form: draws the state the server answers with, and turns what the clerk
// does into the form's events. Where focus goes is the form's decision: after each
// answer the page puts the browser's focus where the state says.
'use strict';

const Form = (() => {
  const TYPING_PAUSE_MS = 150;
  const PRINTS_KEY = 'dispatch.printsSeen';
  // Keys the form hears: Backspace, Tab, Enter, Escape, the page keys, the arrows,
  // Delete and F1 to F12.
  const FORM_KEYS = new Set([8, 9, 13, 27, 33, 34, 37, 38, 39, 40, 46, 112, 113, 114, 115, 116, 117, 118, 119, 120, 121, 122, 123]);
  // In a box with a caret these keys also do their usual editing.
  const CARET_KEYS = new Set([8, 37, 39, 46]);
  const FOCUSABLE = new Set(['TextBox', 'ComboBox', 'ListBox', 'ListView', 'DatePicker', 'CommandButton', 'CheckBox', 'Grid']);

  let state = null;
  const views = new Map();  // control id -> {built, shape}
  const typing = new Map();  // control id -> {timer, queued, dirty}
  let onClosed = () => {};

  const surface = () => document.getElementById('surface');

  function controlOf(target) {
    const element = target && target.closest ? target.closest('[data-control]') : null;
    return element ? element.dataset.control : null;
  }

  function controlState(id) {
    return state ? state.controls.find((c) => c.id === id) : undefined;
  }

  // ---- typing ---------------------------------------------------------------

  function typed(id) {
    for (const other of typing.keys()) if (other !== id) flushTyping(other);
    const entry = typing.get(id) || {timer: null, queued: false, dirty: false};
    entry.dirty = true;
    clearTimeout(entry.timer);
    entry.timer = setTimeout(() => flushTyping(id), TYPING_PAUSE_MS);
    typing.set(id, entry);
  }

  // Queues the box's text; the text is read when the request goes, so keystrokes
  // made while it waits travel with it.
  function flushTyping(id) {
    const entry = typing.get(id);
    if (!entry) return;
    clearTimeout(entry.timer);
    entry.timer = null;
    if (entry.queued) return;
    entry.queued = true;
    Api.event(() => {
      entry.queued = false;
      entry.dirty = false;
      const view = views.get(id);
      const c = controlState(id);
      const text = view && view.built.input ? view.built.input.value : null;
      if (text === null || (c && c.text === text)) {
        if (!entry.timer) typing.delete(id);
        return null;
      }
      return ['type', id, text];
    });
  }

  // What the clerk did before this action goes first.
  function flushPending() {
    for (const id of [...typing.keys()]) flushTyping(id);
    const gridTyping = GridView.takeTyping();
    if (gridTyping) Api.event(gridTyping);
  }

  const acts = {
    send(words) {
      flushPending();
      Api.event(words);
    },
    // A control the clerk cannot reach takes no focus and no click.
    focus(id) {
      if (!reachable(id) || state.focus === id) return;
      acts.send(['focus', id]);
    },
    click(id) {
      if (reachable(id)) acts.send(['click', id]);
    },
    typed,
    typingPending: (id) => typing.has(id),
    busy: () => Api.busy(),
  };

  function reachable(id) {
    const c = controlState(id);
    if (!c || state.dialog) return false;
    for (let at = c; at; at = containerOf(at)) if (!at.visible || !at.enabled) return false;
    return true;
  }

  // ---- keys -----------------------------------------------------------------

  function shiftOf(e) {
    return (e.shiftKey ? 1 : 0) + (e.ctrlKey ? 2 : 0) + (e.altKey ? 4 : 0);
  }

  // The platform walks focus by tab index when Tab reaches no handler that moves
  // it: the next control that is shown, enabled and takes focus.
  function tabWalk(from, backwards) {
    Api.event(() => {
      if (!state || state.focus !== from || state.dialog) return null;
      const ring = state.controls
        .filter((c) => FOCUSABLE.has(c.kind) && shown(c) && c.enabled)
        .sort((a, b) => a.tabIndex - b.tabIndex);
      if (ring.length === 0) return null;
      const at = ring.findIndex((c) => c.id === from);
      const step = backwards ? ring.length - 1 : 1;
      const next = ring[(Math.max(at, backwards ? 0 : -1) + step) % ring.length];
      return next.id === from ? null : ['focus', next.id];
    });
  }

  function onKey(e) {
    if (!state || Dialogs.isOpen()) return;
    const id = controlOf(e.target);
    const view = id && views.get(id);
    if (!view) return;
    const code = e.keyCode;
    const kind = view.shape.kind;
    const shift = shiftOf(e);
    if ((kind === 'CommandButton' && (code === 13 || code === 32)) || (kind === 'CheckBox' && code === 32)) {
      e.preventDefault();
      acts.click(id);
      return;
    }
    if (view.built.grid) {
      if (!FORM_KEYS.has(code)) return;
      e.preventDefault();
      acts.send(['grid', 'key', String(code), String(shift)]);
      if (code === 9) tabWalk(id, e.shiftKey);
      return;
    }
    if (!FORM_KEYS.has(code)) return;
    const hasCaret = !!view.built.input;
    if (code === 8 && !hasCaret) return;
    if (kind === 'DatePicker' && code >= 37 && code <= 40) return;
    if (!(hasCaret && CARET_KEYS.has(code))) e.preventDefault();
    // Backspace edits the box; its text goes as typing.
    if (code === 8) return;
    acts.send(['key', id, String(code), String(shift)]);
    if (code === 9) tabWalk(id, e.shiftKey);
  }

  // ---- drawing --------------------------------------------------------------

  function shown(c) {
    for (let at = c; at; at = at.container ? containerOf(at) : null) if (!at.visible) return false;
    return true;
  }

  function containerOf(c) {
    if (!c.container) return null;
    return state.controls.find((o) => o.id === c.container) || state.controls.find((o) => o.name === c.container);
  }

  function shapeOf(c) {
    return {kind: c.kind, style: c.kind === 'ComboBox' ? c.style : 0, multiLine: !!c.multiLine};
  }

  function place(root, c) {
    root.style.left = `${c.left}px`;
    root.style.top = `${c.top}px`;
    root.style.width = c.width > 0 ? `${c.width}px` : '';
    root.style.height = c.height > 0 ? `${c.height}px` : '';
    root.hidden = !c.visible;
    root.classList.toggle('disabled', !c.enabled);
    if (root.tagName === 'BUTTON') root.disabled = !c.enabled;
  }

  function drawControls() {
    const seen = new Set();
    for (const c of state.controls) {
      seen.add(c.id);
      const shape = shapeOf(c);
      let view = views.get(c.id);
      if (view && JSON.stringify(view.shape) !== JSON.stringify(shape)) {
        view.built.root.remove();
        view = null;
      }
      if (!view) {
        view = {built: Controls.build(c, acts), shape};
        views.set(c.id, view);
      }
      const container = containerOf(c);
      const parentView = container && views.get(container.id);
      const parent = parentView ? parentView.built.content || parentView.built.root : surface();
      if (view.built.root.parentElement !== parent) parent.append(view.built.root);
      place(view.built.root, c);
      view.built.update(c);
    }
    for (const [id, view] of views) {
      if (!seen.has(id)) {
        view.built.root.remove();
        views.delete(id);
      }
    }
    sizeSurface();
  }

  // The form is as large as what it shows at its top level.
  function sizeSurface() {
    let width = 0;
    let height = 0;
    for (const c of state.controls) {
      if (c.container || !c.visible || c.width <= 0 || c.height <= 0) continue;
      if (c.left + c.width <= 0 || c.top + c.height <= 0) continue;
      width = Math.max(width, c.left + c.width);
      height = Math.max(height, c.top + c.height);
    }
    surface().style.width = `${Math.max(width + 8, 320)}px`;
    surface().style.height = `${Math.max(height + 8, 120)}px`;
  }

  function drawTypeAhead() {
    let list = document.getElementById('type-ahead');
    const open = state.typeAhead && !state.dialog;
    if (!open) {
      if (list) list.remove();
      return;
    }
    const under = views.get(state.typeAhead.under);
    if (!list) {
      list = document.createElement('ul');
      list.id = 'type-ahead';
      list.className = 'drop-list type-ahead';
      document.body.append(list);
    }
    list.textContent = '';
    const current = typeAheadRow(state.typeAhead);
    state.typeAhead.rows.forEach((text, i) => {
      const row = document.createElement('li');
      row.textContent = text;
      if (i === current) row.className = 'current';
      row.addEventListener('mousedown', (e) => {
        e.preventDefault();
        acts.send(['pick', String(i + 1)]);
      });
      list.append(row);
    });
    if (under) {
      const box = under.built.root.getBoundingClientRect();
      list.style.left = `${box.left + window.scrollX}px`;
      list.style.top = `${box.bottom + window.scrollY}px`;
      list.style.minWidth = `${box.width}px`;
    }
    const currentRow = list.children[current];
    if (currentRow) currentRow.scrollIntoView({block: 'nearest'});
  }

  // The row the form's list has chosen (from 0), when the state names one.
  function typeAheadRow(list) {
    if (Number.isInteger(list.selected)) return list.selected;
    if (Number.isInteger(list.row)) return list.row - 1;
    return -1;
  }

  function drawStatus() {
    const status = document.getElementById('status');
    status.textContent = state.status ? state.status.text : '';
    status.classList.remove('refused');
  }

  function drawPrints() {
    const prints = state.prints || [];
    const strip = document.getElementById('prints');
    strip.hidden = prints.length === 0;
    strip.textContent = '';
    for (const p of prints) {
      const link = document.createElement('a');
      link.href = '#';
      link.textContent = p.name;
      link.addEventListener('click', (e) => {
        e.preventDefault();
        openPrint(p.n);
      });
      strip.append(link);
    }
    const seen = Number(sessionStorage.getItem(PRINTS_KEY) || 0);
    if (prints.length > seen) {
      sessionStorage.setItem(PRINTS_KEY, String(prints.length));
      openPrint(prints[prints.length - 1].n);
    }
  }

  // A print needs the token, so it is fetched here and shown from memory.
  async function openPrint(n) {
    try {
      const response = await Api.request('GET', `/api/print/${n}`);
      const url = URL.createObjectURL(await response.blob());
      if (!window.open(url, '_blank')) showRefusal(`The print ${n} is ready: open it from the list above the status line.`);
    } catch (e) {
      showRefusal(e.message);
    }
  }

  function applyFocus() {
    if (Api.queued() || state.dialog || !state.focus) return;
    const view = views.get(state.focus);
    const target = view && (view.built.focusTarget || view.built.root);
    if (target && document.activeElement !== target) target.focus({preventScroll: false});
  }

  function draw(next) {
    state = next;
    // Typing the server has now seen no longer holds the box's text back.
    for (const [id, entry] of typing) if (!entry.dirty && !entry.timer && !entry.queued) typing.delete(id);
    if (!state.open) {
      close();
      onClosed();
      return;
    }
    document.getElementById('title').textContent = state.caption || 'Dispatch';
    document.title = state.caption || 'Dispatch';
    Controls.closeChoices();
    drawControls();
    drawTypeAhead();
    drawStatus();
    drawPrints();
    if (state.dialog) Dialogs.show(state.dialog, (values) => Api.answer(values));
    else Dialogs.hide();
    applyFocus();
  }

  function showRefusal(reason) {
    const status = document.getElementById('status');
    status.textContent = reason;
    status.classList.add('refused');
  }

  function close() {
    for (const entry of typing.values()) clearTimeout(entry.timer);
    typing.clear();
    GridView.takeTyping();
    Api.clearQueue();
    Dialogs.hide();
    const list = document.getElementById('type-ahead');
    if (list) list.remove();
    for (const view of views.values()) view.built.root.remove();
    views.clear();
    state = null;
    sessionStorage.removeItem(PRINTS_KEY);
    document.getElementById('window').hidden = true;
  }

  function start(first, closedHandler) {
    onClosed = closedHandler;
    document.getElementById('window').hidden = false;
    draw(first);
  }

  document.addEventListener('DOMContentLoaded', () => {
    surface().addEventListener('keydown', onKey);
  });

  // Idle: no typing waiting to go, no request on its way.
  const idle = () => typing.size === 0 && !Api.busy();

  return {start, draw, close, showRefusal, idle, current: () => state};
})();
