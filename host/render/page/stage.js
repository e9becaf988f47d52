// SPDX-License-Identifier: MIT
/** What all parts of the page work with: elements, places on a slide, the pointer, and messages. */
const Stage = (() => {
  const svgSpace = 'http://www.w3.org/2000/svg';

  /** An element with properties, attributes below `set`, listeners named on..., and children; texts are texts. */
  function make(tag, options = {}, ...children) {
    const element = document.createElement(tag);
    for (const [name, value] of Object.entries(options)) {
      if (name.startsWith('on')) {
        element.addEventListener(name.slice(2), value);
      } else if (name === 'set') {
        Object.entries(value).forEach(([attribute, text]) => element.setAttribute(attribute, text));
      } else {
        element[name] = value;
      }
    }
    element.append(...children);
    return element;
  }

  function makeSvg(tag, attributes = {}) {
    const element = document.createElementNS(svgSpace, tag);
    Object.entries(attributes).forEach(([name, value]) => element.setAttribute(name, value));
    return element;
  }

  function button(text, label, action, options = {}) {
    const usual = { type: 'button', title: label, onclick: action, set: { 'aria-label': label } };
    return make('button', { ...usual, ...options }, text);
  }

  /** Where an event is on a slide, in its own pixels. */
  function pointOn(slide, event) {
    const point = new DOMPoint(event.clientX, event.clientY);
    return point.matrixTransform(slide.svg.getScreenCTM().inverse());
  }

  /** The box around elements of a slide, in its own pixels, wherever tools have moved them from. */
  function boxOf(elements) {
    const boxes = elements.map((element) => element.getBBox()).filter((box) => box.width > 0 || box.height > 0);
    if (boxes.length === 0) {
      return null;
    }
    const left = Math.min(...boxes.map((box) => box.x));
    const top = Math.min(...boxes.map((box) => box.y));
    const right = Math.max(...boxes.map((box) => box.x + box.width));
    const bottom = Math.max(...boxes.map((box) => box.y + box.height));
    return { x: left, y: top, width: right - left, height: bottom - top };
  }

  /** Puts an HTML element over a box of a slide. It is there only while the items that it belongs to are. */
  function place(element, slide, box, owners = []) {
    owners.forEach((owner) => { owner.companions = [...(owner.companions || []), element]; });
    const percent = (part, whole) => `${(part / whole) * 100}%`;
    element.classList.add('placed');
    element.style.left = percent(box.x, slide.width);
    element.style.top = percent(box.y, slide.height);
    element.style.width = percent(box.width, slide.width);
    element.style.height = percent(box.height, slide.height);
    slide.stage.append(element);
  }

  /** Calls begin(point) and, if that is true, move(point) until the pointer is let go, then end(moved). */
  function drag(target, slide, { begin, move, end }) {
    target.addEventListener('pointerdown', (event) => {
      if (event.button !== 0 || document.body.classList.contains('inking')) {
        return;
      }
      const from = pointOn(slide, event);
      if (!begin(from, event)) {
        return;
      }
      event.stopPropagation();
      event.preventDefault();
      let moved = false;
      target.focus({ preventScroll: true });
      target.setPointerCapture(event.pointerId);
      const onMove = (next) => {
        const to = pointOn(slide, next);
        moved = moved || Math.hypot(to.x - from.x, to.y - from.y) > 4;
        move(to, { x: to.x - from.x, y: to.y - from.y }, next);
      };
      const onEnd = (last) => {
        target.removeEventListener('pointermove', onMove);
        target.removeEventListener('pointerup', onEnd);
        target.removeEventListener('pointercancel', onEnd);
        if (end) {
          end(moved, pointOn(slide, last));
        }
      };
      target.addEventListener('pointermove', onMove);
      target.addEventListener('pointerup', onEnd);
      target.addEventListener('pointercancel', onEnd);
    });
  }

  /** Makes an element of a slide one that works with pointer and keyboard. */
  function enliven(element, role, label) {
    element.classList.add('live');
    element.setAttribute('tabindex', '0');
    element.setAttribute('role', role);
    if (label) {
      element.setAttribute('aria-label', label);
    }
  }

  /** Calls action when an element is clicked, or worked by keyboard. */
  function onActivate(element, action) {
    element.addEventListener('click', (event) => {
      if (!document.body.classList.contains('inking')) {
        event.stopPropagation();
        action(event);
      }
    });
    element.addEventListener('keydown', (event) => {
      if (event.key === 'Enter' || event.key === ' ') {
        event.preventDefault();
        event.stopPropagation();
        action(event);
      }
    });
  }

  const voice = make('div', { className: 'aloud', set: { role: 'status', 'aria-live': 'polite' } });

  /** Has a text read aloud. */
  function say(text) {
    voice.textContent = text;
  }

  /** A window above the page with a heading, what stands in it, and buttons. It goes when one of them is pressed. */
  function tell(heading, contents, buttons = []) {
    const dialog = make('dialog', { className: 'window', set: { 'aria-label': heading } });
    const close = button(Words.text('Close'), Words.text('Close'), () => dialog.close());
    dialog.append(make('h2', {}, heading), ...contents, make('div', { className: 'buttons' }, ...buttons, close));
    buttons.forEach((one) => one.addEventListener('click', () => dialog.close()));
    dialog.addEventListener('close', () => dialog.remove());
    document.body.append(dialog);
    dialog.showModal();
    return dialog;
  }

  const calm = matchMedia('(prefers-reduced-motion: reduce)');

  return {
    make, makeSvg, button, pointOn, boxOf, place, drag, enliven, onActivate, say, tell, voice,
    isCalm: () => calm.matches,
  };
})();
